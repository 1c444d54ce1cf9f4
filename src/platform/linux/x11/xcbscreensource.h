#pragma once

#include "app/shell/screensource.h"
#include "platform/linux/x11/docks.h"

#include <QAbstractNativeEventFilter>
#include <QTimer>

namespace quib {

/// Qt's screens. Of several, Qt 6.4 does not know what docks leave free: their struts tell. X11
/// knows no camera notch.
class XcbScreenSource final : public ScreenSource, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    XcbScreenSource();

    QList<Screen> screens() const override;

private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    void noteRearranged();
    void settle();

    Docks m_docks;
    QList<TopStrut> m_struts; ///< Empty with one screen, where Qt knows better.
    QTimer m_settle; ///< One turn of the loop: a rearrangement comes as many signals.
    bool m_isRearranged = false;
};

} // namespace quib
