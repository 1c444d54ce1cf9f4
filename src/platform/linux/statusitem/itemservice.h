#pragma once

#include "app/shell/statusitem.h"

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QObject>

namespace quib {

/// A picture as status bars take it.
struct IconPixmap {
    int width = 0;
    int height = 0;
    QByteArray pixels; ///< Alpha, red, green and blue of each, in this order.
};

struct IconToolTip {
    QString iconName;
    QList<IconPixmap> pixmaps;
    QString title;
    QString text;
};

QDBusArgument& operator<<(QDBusArgument& out, const IconPixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& out, const IconToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& in, IconPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& in, IconToolTip& toolTip);

/// The item itself on the bus, as a status bar asks for it.
class ItemService final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ identifier CONSTANT)
    Q_PROPERTY(QString Title READ name CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconName READ noName CONSTANT)
    Q_PROPERTY(QString IconThemePath READ noName CONSTANT)
    Q_PROPERTY(QList<quib::IconPixmap> IconPixmap READ pixmaps CONSTANT)
    Q_PROPERTY(QString IconAccessibleDesc READ name CONSTANT)
    Q_PROPERTY(QString OverlayIconName READ noName CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ noName CONSTANT)
    Q_PROPERTY(quib::IconToolTip ToolTip READ toolTip CONSTANT)
    Q_PROPERTY(bool ItemIsMenu READ isMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)

public:
    explicit ItemService(QString menuPath);

    void setIcon(const StatusIcon& icon);

    static QString category() { return QStringLiteral("ApplicationStatus"); }
    static QString identifier() { return QStringLiteral("korvel-quib"); }
    static QString status() { return QStringLiteral("Active"); }
    static int windowId() { return 0; }
    static QString noName() { return {}; }
    static bool isMenu() { return true; }
    QString name() const { return m_name; }
    QList<IconPixmap> pixmaps() const { return m_pixmaps; }
    IconToolTip toolTip() const
    {
        return {.iconName = {}, .pixmaps = {}, .title = m_name, .text = {}};
    }
    QDBusObjectPath menu() const { return QDBusObjectPath(m_menuPath); }

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers): slots are what the bus sees
    // NOLINTBEGIN(readability-identifier-naming): the names are the bus's
    Q_SCRIPTABLE void Activate(int x, int y);
    Q_SCRIPTABLE void SecondaryActivate(int x, int y);
    Q_SCRIPTABLE void ContextMenu(int x, int y);
    Q_SCRIPTABLE void Scroll(int delta, const QString& orientation);
    // NOLINTEND(readability-identifier-naming)

Q_SIGNALS:
    /// After the status bar has had its answer.
    void pressed();

private:
    QString m_menuPath;
    QString m_name;
    QList<IconPixmap> m_pixmaps;
};

} // namespace quib
