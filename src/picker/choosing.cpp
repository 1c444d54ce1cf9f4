#include "picker/choosing.h"

#include "picker/applicationdialog.h"
#include "picker/look.h"
#include "picker/placing.h"
#include "platform/platform.h"

#include <QApplication>
#include <QFileDialog>
#include <QScreen>
#include <QSettings>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QTextStream>
#include <QWindow>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

void print(const QString& line)
{
    QTextStream(stdout) << line << Qt::endl;
}

/// Says when a window is in sight.
class Announcer : public QObject {
public:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* window = static_cast<QWindow*>(object);
        if (event->type() == QEvent::Expose && window->isExposed() && !m_isDone) {
            m_isDone = true;
            print(u"shown %1"_s.arg(window->winId()));
            window->requestActivate();
        }
        return QObject::eventFilter(object, event);
    }

private:
    bool m_isDone = false;
};

QRect rectOf(const QString& text)
{
    const auto parts = text.split(u',');
    return parts.size() == 4
        ? QRect(parts[0].toInt(), parts[1].toInt(), parts[2].toInt(), parts[3].toInt())
        : QRect();
}

/// The folder, or the nearest one above it that is still there.
QString existing(QString folder)
{
    while (!folder.isEmpty() && !QFileInfo(folder).isDir()) {
        const auto above = QFileInfo(folder).path();
        folder = above == folder ? QString() : above;
    }
    return folder.isEmpty() || folder == u"."_s ? QDir::homePath() : folder;
}

std::unique_ptr<QDialog> folderDialog(const QString& start)
{
    auto dialog = std::make_unique<QFileDialog>(nullptr, u"Choose Folder"_s, existing(start));
    dialog->setOption(QFileDialog::DontUseNativeDialog); // Others may start elsewhere.
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    for (const auto& ofTypes : {u"fileTypeLabel"_s, u"fileTypeCombo"_s}) {
        if (auto* part = dialog->findChild<QWidget*>(ofTypes)) {
            part->hide(); // There is one type only.
        }
    }
    return dialog;
}

std::unique_ptr<QDialog> dialogFor(const QCommandLineParser& line, const Platform& platform)
{
    if (line.isSet(u"folder"_s)) {
        return folderDialog(line.value(u"folder"_s));
    }
    return std::make_unique<ApplicationDialog>(platform.applications->applications());
}

QString chosenIn(const QDialog& dialog)
{
    if (const auto* folders = qobject_cast<const QFileDialog*>(&dialog)) {
        return folders->selectedFiles().value(0);
    }
    return static_cast<const ApplicationDialog&>(dialog).chosen();
}

void show(QDialog& dialog, Announcer& announcer, const QRect& card)
{
    const auto* screen = QGuiApplication::screenAt(card.center());
    const auto available
        = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const bool isForFolders = qobject_cast<QFileDialog*>(&dialog) != nullptr;
    dialog.setGeometry(
        placeClearOf(card, available, isForFolders ? QSize(760, 480) : QSize(420, 520)));
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
    dialog.winId(); // Makes the window that is listened to.
    dialog.windowHandle()->installEventFilter(&announcer);
    dialog.show();
}

/// What Qt's dialog remembers is not shared with other programs.
void keepSettingsApart()
{
    const auto folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + u"/KorvelQuib"_s;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder);
}

} // namespace

void addOptions(QCommandLineParser& line)
{
    line.addOption({u"folder"_s, u"choose a folder, starting in this one"_s, u"folder"_s});
    line.addOption({u"application"_s, u"choose an application"_s});
    line.addOption({u"clear-of"_s, u"where the window must not be"_s, u"x,y,width,height"_s});
}

void choose(const QCommandLineParser& line)
{
    keepSettingsApart();
    const auto platform = makePlatformWithoutDisplay();
    wearOurLook(platform.desktop->fontFamily());
    const auto dialog = dialogFor(line, platform);
    QSocketNotifier asker(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&asker, &QSocketNotifier::activated, dialog.get(), &QDialog::reject);
    QObject::connect(dialog.get(), &QDialog::finished, qApp, &QCoreApplication::quit);
    Announcer announcer;
    show(*dialog, announcer, rectOf(line.value(u"clear-of"_s)));
    QApplication::exec(); // A lost display ends it too.
    const bool isAccepted = dialog->result() == QDialog::Accepted;
    const auto chosen = isAccepted ? chosenIn(*dialog) : QString();
    if (!chosen.isEmpty()) {
        print(u"chosen "_s + QString::fromLatin1(QUrl::fromLocalFile(chosen).toEncoded()));
    }
}

} // namespace quib
