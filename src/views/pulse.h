#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QQmlParserStatus>
#include <QQuickItem>
#include <QTimer>

#include <qqmlintegration.h>

#include <chrono>

namespace quib {

/// From 1 down to 0.35 in a second and back up in another, easing in and out.
double pulseLevel(std::chrono::nanoseconds sinceBegin);

/// A level that goes up and down for the item it stands in, twenty times a second: few enough to
/// cost nothing, enough to look even. It rests at 1 while not running or while out of sight.
class Pulse : public QObject, public QQmlParserStatus {
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(bool running READ isWanted WRITE setRunning NOTIFY runningChanged)
    Q_PROPERTY(double level READ level NOTIFY levelChanged)

public:
    explicit Pulse(QObject* parent = nullptr);

    bool isWanted() const { return m_isWanted; }
    bool isBeating() const { return m_timer.isActive(); }
    double level() const { return m_level; }

    void setRunning(bool isRunning);

    void classBegin() override { }
    void componentComplete() override;

Q_SIGNALS:
    void runningChanged();
    void levelChanged();

private:
    void restart();
    void setLevel(double level);

    bool m_isWanted = false;
    double m_level = 1;
    QPointer<QQuickItem> m_item;
    QElapsedTimer m_sinceBegin;
    QTimer m_timer;
};

} // namespace quib
