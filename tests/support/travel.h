#pragma once

#include <QByteArray>

/// The system in other time zones, one after the other, back home when this ends.
class Travel {
public:
    explicit Travel(const QByteArray& zone) { to(zone); }
    ~Travel() { to(m_home); }
    Q_DISABLE_COPY_MOVE(Travel)

    static void to(const QByteArray& zone) { qputenv("TZ", zone); }

private:
    QByteArray m_home = qgetenv("TZ");
};
