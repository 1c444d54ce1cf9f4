#pragma once

#include "desktop/desk/desk.h"

#include <QDBusConnection>
#include <QObject>
#include <QRect>

#include <vector>

/// One thing of the panel, as a reader is told of it.
struct Told {
    QString path;
    QString role;
    QString name;
    QString description;
    QStringList interfaces;
    quint64 states = 0;
    QRect place; ///< On the screen, in its own dots.
    std::vector<Told> parts;

    bool is(int state) const { return (states >> state & 1U) != 0; }
    bool canBePressed() const
    {
        return interfaces.contains(QStringLiteral("org.a11y.atspi.Action"));
    }
    /// All that are shown, this one too, in order.
    std::vector<const Told*> shown() const;
    /// The first shown of that role and, where there are several, of that name; null without one.
    const Told* find(const QString& role, const QString& name = {}) const;
};

/// The states that are asked for, by their numbers on the accessibility bus.
namespace state {
constexpr int Checked = 4;
constexpr int Editable = 7;
constexpr int Focusable = 11;
constexpr int Focused = 12;
constexpr int Selected = 23;
constexpr int Showing = 25;
} // namespace state

/// A screen reader: it turns accessibility on, as a desktop does for one, and asks on its bus. Made
/// before Quib starts.
class Reader : public QObject {
    Q_OBJECT

public:
    /// "focused" or "checked" and the path of what became so, in the order they came.
    QStringList heard;

    explicit Reader(const Desk& desk);
    ~Reader() override;
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    /// The panel's window with all that is in it; of no role while it is not told of.
    Told panel();
    void press(const Told& thing);
    void setText(const Told& field, const QString& text);
    QString textOf(const Told& field);
    int cursorOf(const Told& field);
    /// Of the character at that offset, on the screen.
    QRect placeOf(const Told& field, int character);

private Q_SLOTS:
    void hear(const QDBusMessage& message);

private:
    QVariantList ask(const QString& path, const QString& interface, const QString& method,
                     const QVariantList& arguments = {});
    QVariant property(const QString& path, const QString& interface, const QString& name);
    bool findPanel();
    Told tell(const QString& path);
    QStringList childrenOf(const QString& service, const QString& path);

    QDBusConnection m_bus;
    QString m_service; ///< Of the program, on the accessibility bus.
    QString m_path; ///< Of its window.
};
