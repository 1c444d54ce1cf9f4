#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <xcb/xcb.h>

namespace quib {

/// Whether a compositor blends windows with what lies beneath them. It may come and go at any time.
class CompositorWatch final : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    CompositorWatch();

    bool isRunning() const { return m_isRunning; }

Q_SIGNALS:
    void isRunningChanged();

private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    void setRunning(bool isRunning);

    xcb_atom_t m_selection = XCB_ATOM_NONE; ///< Whoever owns it composes this screen.
    int m_eventKind = 0; ///< 0, which no event has, where the server cannot tell.
    bool m_isRunning = false;
};

} // namespace quib
