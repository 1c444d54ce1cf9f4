#pragma once

#include "app/shell/desktop.h"
#include "app/shell/filepicker.h"
#include "app/shell/loginitem.h"
#include "app/shell/sessionlock.h"
#include "app/shell/singleinstance.h"
#include "app/shell/statusitem.h"
#include "integrations/opening/appcatalog.h"
#include "integrations/opening/fileprobe.h"
#include "integrations/opening/iconsource.h"
#include "integrations/opening/opener.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <utility>
#include <vector>

class FakeSingleInstance final : public quib::SingleInstance {
public:
    bool claim(const std::filesystem::path& /*dataFolder*/) override { return true; }
};

class FakeSessionLock final : public quib::SessionLock {
public:
    bool isLocked() const override { return m_isLocked; }
    void setLocked(bool isLocked)
    {
        m_isLocked = isLocked;
        Q_EMIT isLockedChanged();
    }

private:
    bool m_isLocked = false;
};

class FakeDesktop final : public quib::Desktop {
public:
    bool reduced = false;
    int beeps = 0;

    bool isMotionReduced() const override { return reduced; }
    QString fontFamily() const override { return QStringLiteral("Inter"); }
    void beep() override { ++beeps; }
};

/// Nothing is installed, unless a test says otherwise.
class FakeAppCatalog final : public quib::AppCatalog {
public:
    QHash<QString, QString> paths; ///< Of names.
    QList<quib::Application> list;

    std::optional<QString> applicationNamed(const QString& name) const override
    {
        return paths.contains(name) ? std::optional(paths.value(name)) : std::nullopt;
    }
    QString nameOf(const QString& path) const override { return path; }
    QList<quib::Application> applications() const override { return list; }
};

/// Writes down what it was asked to open.
class FakeOpener final : public quib::Opener {
public:
    QStringList asked;
    std::vector<std::filesystem::path> paths; ///< As they stand, also where they are no text.

    void openPath(const std::filesystem::path& path) override
    {
        asked << QStringLiteral("open ") + QString::fromStdString(path.native());
        paths.push_back(path);
    }
    void openAddress(const QUrl& address) override
    {
        asked << QStringLiteral("browse ") + QString::fromLatin1(address.toEncoded());
    }
    void openWithFirst(const QString& path, const QStringList& candidates) override
    {
        asked << QStringLiteral("open %1 with first of %2")
                     .arg(path, candidates.join(QLatin1Char('|')));
    }
    void openInTextEditor(const std::filesystem::path& path) override
    {
        asked << QStringLiteral("edit ") + QString::fromStdString(path.native());
        paths.push_back(path);
    }
    void reveal(const QString& path) override { asked << QStringLiteral("reveal ") + path; }
};

/// Leaves every question open until the test answers it.
class FakeIconSource final : public quib::IconSource {
public:
    struct Question {
        QString path;
        int pixels = 0;
        Answer answer;
    };

    QList<Question> open;

    void find(const QString& path, int pixels, Answer answer) override
    {
        open.append({path, pixels, std::move(answer)});
    }
    bool isBusy() const override { return !open.isEmpty(); }

    /// With a square of that colour.
    void answerAll(const QColor& color)
    {
        for (const auto& question : std::exchange(open, {})) {
            QImage picture(question.pixels, question.pixels, QImage::Format_ARGB32_Premultiplied);
            picture.fill(color);
            question.answer(picture);
        }
        Q_EMIT settled();
    }
};

/// Everything is there, unless a test says otherwise. It may hold the answers back.
class FakeFileProbe final : public quib::FileProbe {
public:
    QSet<QString> gone;
    QSet<QString> unknown;
    QStringList asked;
    bool holdsBack = false;

    void ask(const QString& path, Answer answer) override
    {
        asked << path;
        m_due.append({path, std::move(answer)});
        if (!holdsBack) {
            QMetaObject::invokeMethod(this, &FakeFileProbe::answerAll, Qt::QueuedConnection);
        }
    }
    bool isBusy() const override { return !m_due.isEmpty(); }

    void answerAll()
    {
        for (const auto& [path, answer] : std::exchange(m_due, {})) {
            answer(gone.contains(path)          ? quib::FilePresence::Gone
                       : unknown.contains(path) ? quib::FilePresence::Unknown
                                                : quib::FilePresence::There);
        }
    }

private:
    QList<std::pair<QString, Answer>> m_due;
};

class FakeStatusItem final : public quib::StatusItem {
public:
    explicit FakeStatusItem(QStringList& asked)
        : m_asked(asked)
    {
    }

    quib::StatusIcon icon;
    QList<quib::MenuItem> menu;
    bool shown = true;

    void install(const quib::StatusIcon& installed) override
    {
        m_asked << QStringLiteral("install status item");
        icon = installed;
    }
    void setMenu(const QList<quib::MenuItem>& items) override { menu = items; }
    bool isShown() const override { return shown; }

private:
    QStringList& m_asked;
};

class FakeLoginItem final : public quib::LoginItem {
public:
    bool enabled = false;
    bool fails = false;

    bool isEnabled() const override { return enabled; }
    bool enable() override { return change(true); }
    bool disable() override { return change(false); }

private:
    bool change(bool wanted)
    {
        enabled = fails ? enabled : wanted;
        return !fails;
    }
};

/// Leaves every choice open until the test answers it.
class FakeFilePicker final : public quib::FilePicker {
public:
    QStringList asked;
    QList<Answer> open;

    void chooseFolder(const std::optional<QUrl>& startIn, Answer answer) override
    {
        asked << QStringLiteral("folder in %1").arg(startIn.value_or(QUrl()).toLocalFile());
        open << std::move(answer);
    }
    void chooseApplication(Answer answer) override
    {
        asked << QStringLiteral("application");
        open << std::move(answer);
    }
};
