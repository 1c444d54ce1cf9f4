// A partner of bench/crowded-partners: "players N" is so many music players that say too much of
// themselves; "gaps" asks Quib all the time, and says after each line of its input for how long it
// did not answer at most, in milliseconds.
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <limits>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype TenMegabytes = 10'000'000;

/// Markup, control characters, letters that turn the direction, and no end.
QString endlessText()
{
    return u"<img src=\"http://192.0.2.1/\">\u202e\u001b[31m\n\u0007 "_s.repeated(TenMegabytes
                                                                                  / 40);
}

class Players final : public QDBusVirtualObject {
public:
    QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        if (message.member() != "GetAll"_L1) {
            return false;
        }
        const QVariantMap track{{u"xesam:title"_s, m_text},
                                {u"xesam:artist"_s, QStringList(100'000, u"A\nB"_s)},
                                {u"mpris:length"_s, std::numeric_limits<double>::quiet_NaN()}};
        const QVariantMap properties{{u"PlaybackStatus"_s, u"Playing"_s}, {u"Metadata"_s, track}};
        return bus.send(message.createReply(QVariant(properties)));
    }

private:
    QString m_text = endlessText();
};

int play(int count)
{
    auto bus = QDBusConnection::sessionBus();
    auto* players = new Players;
    bus.registerVirtualObject(u"/org/mpris/MediaPlayer2"_s, players);
    for (int i = 0; i < count; ++i) {
        bus.registerService(u"org.mpris.MediaPlayer2.crowd%1"_s.arg(i));
    }
    QTextStream(stdout) << "ready" << Qt::endl;
    return QCoreApplication::exec();
}

/// One question at a time, and the next one as soon as there is an answer: what takes time then is
/// Quib's main thread.
class Gaps final : public QObject {
public:
    Gaps()
        : m_input(STDIN_FILENO, QSocketNotifier::Read)
    {
        connect(&m_input, &QSocketNotifier::activated, this, &Gaps::tell);
        ask();
    }

private:
    void ask()
    {
        const auto question = QDBusMessage::createMethodCall(
            u"org.korvel.Quib"_s, u"/org/korvel/Quib"_s, u"org.freedesktop.DBus.Introspectable"_s,
            u"Introspect"_s);
        m_asked.start();
        auto* answer = new QDBusPendingCallWatcher(
            QDBusConnection::sessionBus().asyncCall(question, std::numeric_limits<int>::max()),
            this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
            answer->deleteLater();
            m_longest = std::max(m_longest, m_asked.nsecsElapsed());
            QTimer::singleShot(1, this, &Gaps::ask);
        });
    }

    void tell()
    {
        if (QTextStream(stdin).readLine().isNull()) {
            QCoreApplication::exit();
            return;
        }
        const auto pending = m_asked.nsecsElapsed();
        QTextStream(stdout) << double(std::max(m_longest, pending)) / 1e6 << Qt::endl;
        m_longest = 0;
    }

    QSocketNotifier m_input;
    QElapsedTimer m_asked;
    qint64 m_longest = 0;
};

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication app(argc, argv);
    const auto arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "players"_L1) {
        return play(arguments.value(2).toInt());
    }
    const Gaps gaps;
    return QCoreApplication::exec();
}
