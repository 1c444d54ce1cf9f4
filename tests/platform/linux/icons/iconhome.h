#pragma once

#include "platform/linux/icons/themeiconsource.h"
#include "support/writefile.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// A home of a test's own with themes, applications and files, and who finds their icons: by the
/// theme "Ours", which is there.
class IconHome {
public:
    /// Of a theme with a single folder, "32x32/apps".
    static constexpr auto OneFolder
        = "[Icon Theme]\nName=x\nDirectories=32x32/apps\n[32x32/apps]\nSize=32\n";

    std::unique_ptr<quib::ThemeIconSource> source;

    IconHome()
    {
        qputenv("HOME", QFile::encodeName(m_folder.path()));
        qputenv("XDG_DATA_HOME", QFile::encodeName(path(QStringLiteral("data"))));
        qputenv("XDG_DATA_DIRS", "/usr/share");
        source = std::make_unique<quib::ThemeIconSource>();
        source->setTheme(QStringLiteral("Ours"));
        theme(QStringLiteral("Ours"), OneFolder);
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }

    QString put(const QString& name, const QByteArray& bytes) const
    {
        return writeFile(path(name), bytes);
    }

    QString picture(const QString& name, const QColor& color, QSize size = {32, 32}) const
    {
        auto made = put(name, {});
        QImage image(size, QImage::Format_ARGB32);
        image.fill(color);
        image.save(made, "PNG");
        return made;
    }

    /// An application with that icon.
    QString entry(const QString& icon) const
    {
        return put(QStringLiteral("app.desktop"),
                   "[Desktop Entry]\nType=Application\nName=App\nExec=true\nIcon=" + icon.toUtf8()
                       + "\n");
    }

    void theme(const QString& name, const QByteArray& index) const
    {
        put(QStringLiteral("data/icons/%1/index.theme").arg(name), index);
    }

    QImage ask(const QString& path, int pixels = 32) const { return ask(*source, path, pixels); }

    static QImage ask(quib::ThemeIconSource& source, const QString& path, int pixels = 32)
    {
        QImage answer;
        source.find(path, pixels, [&answer](const QImage& picture) { answer = picture; });
        [[maybe_unused]] const bool came
            = QTest::qWaitFor([&] { return !answer.isNull(); }, 30'000);
        return answer;
    }

private:
    QTemporaryDir m_folder;
};

inline QColor middleOf(const QImage& image)
{
    return image.pixelColor(image.rect().center());
}
