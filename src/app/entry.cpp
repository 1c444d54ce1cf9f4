#include "app/entry.h"

#include "app/appdelegate.h"
#include "app/commandline.h"
#include "app/panelengine.h"
#include "app/snapshot.h"

#include <QFont>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QQuickWindow>
#include <QTextStream>

#include <memory>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

void prepareToDraw(const QByteArray& qtPlatform)
{
    // Qt tells the console what it finds missing around it, such as a runtime folder, and wrong in
    // an icon.
    QLoggingCategory::setFilterRules(u"default.warning=false\nqt.svg*=false"_s);
    qputenv("QT_QPA_PLATFORM", qtPlatform);
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0"); // Qt would wait 5 ms before it draws.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication::setDesktopFileName(u"org.korvel.Quib"_s);
    QGuiApplication::setApplicationDisplayName(u"Korvel Quib"_s);
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

void useFont(const Desktop& desktop)
{
    QGuiApplication::setFont(QFont(desktop.fontFamily()));
}

/// Choosing it takes a look at every font of the system: that waits until a text is shown.
void useFontOnceNeeded(AppDelegate& delegate)
{
    auto* waiting = new QObject(&delegate);
    const auto use = [&delegate, waiting] {
        useFont(*delegate.platform().desktop);
        delete waiting;
    };
    const auto useForTimer = [&delegate, use] {
        if (delegate.store().hasRunningEntry()) {
            use();
        }
    };
    QObject::connect(&delegate.model(), &NotchModel::isExpandedChanged, waiting, use);
    QObject::connect(&delegate.store(), &Store::entriesChanged, waiting, useForTimer);
    useForTimer();
}

int say(const QString& text)
{
    QTextStream(stdout) << text;
    return 0;
}

int runSnapshot(char** argv, const QString& folder)
{
    prepareToDraw("offscreen");
    int ours = 1; // Qt's own options are not ours: what is not known is passed over.
    auto services = lookAtServices();
    const QGuiApplication app(ours, argv);
    services.hidden.reset();
    AppDelegate delegate(makePlatformWithoutDisplay());
    useFont(*delegate.platform().desktop);
    Snapshot::run(folder, delegate);
    return 0;
}

int runPanel(char** argv)
{
    const auto windowSystem = chooseWindowSystem();
    if (windowSystem.qtPlatform.isEmpty()) {
        QTextStream(stderr) << u"quib: "_s << windowSystem.problem << u'\n';
        return 1;
    }
    prepareToDraw(windowSystem.qtPlatform);
    int ours = 1; // Qt's own options are not ours: what is not known is passed over.
    auto services = lookAtServices(); // Qt meets the session bus, and waits for one that hangs.
    const QGuiApplication app(ours, argv);
    services.hidden.reset();
    auto platform = makePlatform(services.arePrompt);
    if (!platform.instance->claim(Store::folder())) {
        return 0; // The panel that is open already has been called.
    }
    auto engine = std::make_unique<PanelEngine>(); // Reads the views meanwhile.
    AppDelegate delegate(std::move(platform));
    useFontOnceNeeded(delegate);
    QObject::connect(&app, &QCoreApplication::aboutToQuit, &delegate,
                     &AppDelegate::applicationWillTerminate);
    QObject::connect(delegate.platform().instance.get(), &SingleInstance::superseded, &app, [&] {
        QObject::disconnect(&app, &QCoreApplication::aboutToQuit, &delegate, nullptr);
        QCoreApplication::exit();
    });
    delegate.applicationDidFinishLaunching(std::move(engine));
    return QGuiApplication::exec();
}

QStringList argumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    return arguments;
}

} // namespace

int runQuib(int argc, char** argv)
{
    prepareMemory();
    prepareLimits();
    const auto line = parseArguments(argumentsOf(argc, argv));
    switch (line.action) {
    case CommandLine::Action::Snapshot: return runSnapshot(argv, line.folder);
    case CommandLine::Action::Help: return say(helpText());
    case CommandLine::Action::Version: return say(versionText());
    case CommandLine::Action::Start: return runPanel(argv);
    }
    Q_UNREACHABLE();
}

} // namespace quib
