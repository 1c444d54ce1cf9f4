// As mutter offers it to programs that control a desktop from afar.
#include "hand.h"

#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusObjectPath>
#include <QDBusReply>

#include <linux/input-event-codes.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto Service = "org.gnome.Mutter.RemoteDesktop"_L1;
constexpr auto Path = "/org/gnome/Mutter/RemoteDesktop"_L1;
constexpr auto SessionInterface = "org.gnome.Mutter.RemoteDesktop.Session"_L1;

QString makeSession()
{
    QDBusInterface desktop(Service, Path, Service);
    const QDBusReply<QDBusObjectPath> session = desktop.call(u"CreateSession"_s);
    if (!session.isValid()) {
        throw NoHand{session.error().message().toUtf8()};
    }
    return session.value().path();
}

class MutterHand : public Hand {
public:
    MutterHand()
        : m_session(Service, makeSession(), SessionInterface)
    {
        tell(u"Start"_s, {});
        setScreens({});
        key(KEY_LEFTSHIFT, true); // The first key brings the seat its keyboard, and is lost.
        key(KEY_LEFTSHIFT, false);
    }

    void moveTo(QPoint point) override
    {
        const auto way = point - m_place;
        m_place = point;
        tell(u"NotifyPointerMotionRelative"_s, {double(way.x()), double(way.y())});
    }
    void button(uint32_t code, bool isDown) override
    {
        tell(u"NotifyPointerButton"_s, {static_cast<int>(code), isDown});
    }
    void key(uint32_t code, bool isDown) override
    {
        tell(u"NotifyKeyboardKeycode"_s, {code, isDown});
    }
    /// The pointer may be anywhere now. From the corner on its place is known.
    void setScreens(QSize /*all*/) override
    {
        const double far = -100'000; // It goes as far as it can.
        tell(u"NotifyPointerMotionRelative"_s, {far, far});
        m_place = {};
    }
    bool isHeard() override { return m_isHeard; }

private:
    void tell(const QString& what, const QVariantList& values)
    {
        const auto reply = m_session.callWithArgumentList(QDBus::Block, what, values);
        m_isHeard = m_isHeard && reply.type() == QDBusMessage::ReplyMessage;
    }

    QDBusInterface m_session;
    QPoint m_place;
    bool m_isHeard = true;
};

} // namespace

std::unique_ptr<Hand> makeMutterHand()
{
    return std::make_unique<MutterHand>();
}
