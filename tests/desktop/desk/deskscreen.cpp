// What is seen on the desk's screen, and what pointer and keyboard do there.
#include "desktop/desk/deskconnection.h"
#include "desktop/desk/places.h"

#include <QDeadlineTimer>
#include <QTest>

using namespace Qt::StringLiterals;

bool waitForLasting(const char* what, const std::function<bool()>& isSo)
{
    constexpr int Enough = 20;
    int inARow = 0;
    for (QDeadlineTimer end(15'000); inARow < Enough && !end.hasExpired(); QTest::qWait(25)) {
        inARow = isSo() ? inARow + 1 : 0;
    }
    if (inARow < Enough) {
        qWarning("waited in vain for %s", what);
    }
    return inARow == Enough;
}

void Desk::moveTo(QPoint point) const
{
    xdotool({u"mousemove"_s, QString::number(point.x()), QString::number(point.y())});
}

void Desk::pushTo(QPoint point) const
{
    const auto place = xdotool({u"getmouselocation"_s, u"--shell"_s}).split(u'\n');
    const QPoint from(place.value(0).section(u'=', 1).toInt(),
                      place.value(1).section(u'=', 1).toInt());
    const auto way = point - from;
    xdotool({u"mousemove_relative"_s, u"--"_s, QString::number(way.x()), QString::number(way.y())});
}

void Desk::click(QPoint point) const
{
    moveTo(point);
    xdotool({u"click"_s, u"1"_s});
}

void Desk::rightClick(QPoint point) const
{
    moveTo(point);
    xdotool({u"click"_s, u"3"_s});
}

void Desk::middleClick(QPoint point) const
{
    moveTo(point);
    xdotool({u"click"_s, u"2"_s});
}

void Desk::button(const QString& downOrUp) const
{
    xdotool({u"mouse"_s + downOrUp, u"1"_s});
}

void Desk::type(const QString& text) const
{
    xdotool({u"type"_s, u"--delay"_s, u"5"_s, text});
}

void Desk::key(const QString& name) const
{
    xdotool({u"key"_s, name});
}

void Desk::hold(const QString& key) const
{
    xdotool({u"keydown"_s, key, u"sleep"_s, u"1.2"_s, u"keyup"_s, key});
}

void Desk::showTab(int number) const
{
    click(places::tabButton(number));
    waitFor("the tab", [&] { return selectedTab() == number; });
}

void Desk::openWithPointer() const
{
    moveTo(Notch);
    waitForExpanded(true);
    moveTo(InTheCard);
}

void Desk::addTask(const QString& title) const
{
    openWithPointer();
    showTab(3);
    click(places::TaskField);
    type(title);
    key(u"Return"_s);
}

QColor Desk::pixel(QPoint point) const
{
    const auto image = m_connection->image({point * m_options.scale, QSize(1, 1)});
    return image.isNull() ? QColor() : image.pixelColor(0, 0);
}

QImage Desk::picture() const
{
    return m_connection->image({0, 0, 1600, 900});
}

/// The corner of the card that is black only once the spring has come to rest.
bool Desk::isExpanded() const
{
    return pixel({800 - 350 + 12, 255}) == QColor(Qt::black)
        && pixel({800, 287}) == QColor(Qt::black);
}

int Desk::selectedTab() const
{
    for (int number = 0; number < 7; ++number) {
        const auto colour = pixel({800 - 350 + 22 + 20 + 4 + 32 * number, 23});
        if (colour.blue() > 100 && colour.blue() > colour.green() * 3 / 2) {
            return number;
        }
    }
    return -1;
}

bool Desk::waitForExpanded(bool expanded) const
{
    return waitFor(expanded ? "the panel to expand" : "the panel to collapse",
                   [&] { return isExpanded() == expanded; });
}

QString Desk::titleInFront() const
{
    return xdotool({u"getactivewindow"_s, u"getwindowname"_s});
}

bool Desk::waitForFront(const QString& title) const
{
    return waitFor("a window in front, with the keyboard", [&] {
        return titleInFront().startsWith(title)
            && xdotool({u"getactivewindow"_s}) == xdotool({u"getwindowfocus"_s, u"-f"_s});
    });
}

bool Desk::waitForOwner(const QByteArray& selection) const
{
    return waitFor("the owner of a selection", [&] { return m_connection->hasOwner(selection); });
}

bool Desk::isShown(const QString& title) const
{
    return !xdotool({u"search"_s, u"--onlyvisible"_s, u"--name"_s, u'^' + title + u'$'}).isEmpty();
}

QString Desk::xdotool(const QStringList& arguments) const
{
    QProcess tool;
    tool.setProcessEnvironment(environment());
    tool.start(u"xdotool"_s, arguments);
    tool.waitForFinished(10'000);
    return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
}
