#include "platform/linux/picker/pickerdesk.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

QString answerOf(const QString& tool, const QStringList& arguments)
{
    QProcess process;
    process.start(tool, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

} // namespace

const QString PickerDesk::Program = QStringLiteral(PICKER_PROGRAM);

PickerDesk::PickerDesk()
{
    qputenv("HOME", QFile::encodeName(m_home.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(path(u"config"_s)));
    qputenv("XDG_DATA_HOME", QFile::encodeName(path(u"data"_s)));
    qputenv("XDG_DATA_DIRS", QFile::encodeName(path(u"system"_s)));
    QVERIFY(QDir().mkpath(path(u"data/applications"_s)));
    host.adopt(panel);
    host.setInputRegion(QRect(30, 0, Card.width(), Card.height()));
    host.place({Card.x() - 30.0, 0, 760, 340});
    host.orderFront();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    picker = std::make_unique<PickerProgram>(host, Program);
}

PickerDesk::~PickerDesk()
{
    picker.reset();
    QTRY_VERIFY(windowNamed(u"Choose"_s) == XCB_NONE);
}

QString PickerDesk::addEntry(const QString& id, const QString& name, const QByteArray& lines) const
{
    auto entry = path(u"data/applications/"_s + id);
    QFile file(entry);
    if (file.open(QIODevice::WriteOnly)) {
        file.write("[Desktop Entry]\nType=Application\nExec=true\nName=" + name.toUtf8() + "\n"
                   + lines);
    }
    return entry;
}

void PickerDesk::chooseFolder(const QString& start)
{
    picker->chooseFolder(QUrl::fromLocalFile(start), note());
    QTRY_VERIFY((window = windowNamed(u"Choose Folder"_s)) != XCB_NONE);
    QTRY_COMPARE(keyboardOwner(), window);
}

void PickerDesk::chooseApplication()
{
    picker->chooseApplication(note());
    QTRY_VERIFY((window = windowNamed(u"Choose Application"_s)) != XCB_NONE);
    QTRY_COMPARE(keyboardOwner(), window);
}

FilePicker::Answer PickerDesk::note()
{
    return [this](const std::optional<QUrl>& answer) { answers << answer; };
}

QStringList PickerDesk::chosen() const
{
    QStringList paths;
    for (const auto& answer : answers) {
        paths << answer.value_or(QUrl()).toLocalFile();
    }
    return paths;
}

pid_t PickerDesk::processOfWindow() const
{
    return answerOf(u"xdotool"_s, {u"getwindowpid"_s, QString::number(window)}).toInt();
}

xcb_window_t windowNamed(const QString& title)
{
    const auto id = answerOf(u"xdotool"_s, {u"getactivewindow"_s});
    const auto name = answerOf(u"xdotool"_s, {u"getwindowname"_s, id});
    return name.startsWith(title) ? xcb_window_t(id.toUInt()) : xcb_window_t(XCB_NONE);
}

void type(const QString& text)
{
    xdotool({u"type"_s, u"--delay"_s, u"5"_s, text});
}

void key(const QString& name)
{
    xdotool({u"key"_s, name});
}
