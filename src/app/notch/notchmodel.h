#pragma once

#include "app/notch/geometry.h"
#include "app/notch/tab.h"

#include <QObject>
#include <QProperty>
#include <QSizeF>

#include <qqmlintegration.h>

namespace quib {

/// What the notch shows right now. Written by the hover logic and the menu, read by the views;
/// everything on the main thread.
class NotchModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Created by the application delegate")
    Q_PROPERTY(bool isExpanded READ isExpanded WRITE setExpanded NOTIFY isExpandedChanged BINDABLE
                   bindableIsExpanded)
    Q_PROPERTY(quib::tabs::Tab tab READ tab WRITE setTab NOTIFY tabChanged BINDABLE bindableTab)
    Q_PROPERTY(bool isPinned READ isPinned WRITE setPinned NOTIFY isPinnedChanged BINDABLE
                   bindableIsPinned)
    Q_PROPERTY(bool isDropTargeted READ isDropTargeted WRITE setDropTargeted NOTIFY
                   isDropTargetedChanged BINDABLE bindableIsDropTargeted)
    Q_PROPERTY(QSizeF notchSize READ notchSize WRITE setNotchSize NOTIFY notchSizeChanged BINDABLE
                   bindableNotchSize)
    Q_PROPERTY(bool hasNotch READ hasNotch WRITE setHasNotch NOTIFY hasNotchChanged BINDABLE
                   bindableHasNotch)
    Q_PROPERTY(bool isMotionReduced READ isMotionReduced WRITE setMotionReduced NOTIFY
                   isMotionReducedChanged BINDABLE bindableIsMotionReduced)
    Q_PROPERTY(bool isLocked READ isLocked WRITE setLocked NOTIFY isLockedChanged BINDABLE
                   bindableIsLocked)
    Q_PROPERTY(QSizeF cardSize READ cardSize CONSTANT)
    Q_PROPERTY(double wingsWidth READ wingsWidth CONSTANT)

public:
    using QObject::QObject;

    bool isExpanded() const { return m_isExpanded; }
    void setExpanded(bool expanded) { m_isExpanded = expanded; }
    QBindable<bool> bindableIsExpanded() { return &m_isExpanded; }

    Tab tab() const { return m_tab; }
    void setTab(Tab tab) { m_tab = tab; }
    QBindable<Tab> bindableTab() { return &m_tab; }

    bool isPinned() const { return m_isPinned; }
    void setPinned(bool pinned) { m_isPinned = pinned; }
    QBindable<bool> bindableIsPinned() { return &m_isPinned; }

    /// A drag with files is over the notch.
    bool isDropTargeted() const { return m_isDropTargeted; }
    void setDropTargeted(bool targeted) { m_isDropTargeted = targeted; }
    QBindable<bool> bindableIsDropTargeted() { return &m_isDropTargeted; }

    /// Of the camera notch, or of its imitation, in points.
    QSizeF notchSize() const { return m_notchSize.value(); }
    void setNotchSize(QSizeF size) { m_notchSize = size; }
    QBindable<QSizeF> bindableNotchSize() { return &m_notchSize; }

    /// Whether the chosen screen has a real camera notch.
    bool hasNotch() const { return m_hasNotch; }
    void setHasNotch(bool hasNotch) { m_hasNotch = hasNotch; }
    QBindable<bool> bindableHasNotch() { return &m_hasNotch; }

    /// Springs snap and nothing pulses: the desktop asks for no animations, or a picture is taken.
    bool isMotionReduced() const { return m_isMotionReduced; }
    void setMotionReduced(bool reduced) { m_isMotionReduced = reduced; }
    QBindable<bool> bindableIsMotionReduced() { return &m_isMotionReduced; }

    /// Somebody else may look at the screen: nothing of the user's shows.
    bool isLocked() const { return m_isLocked; }
    void setLocked(bool locked) { m_isLocked = locked; }
    QBindable<bool> bindableIsLocked() { return &m_isLocked; }

    static QSizeF cardSize() { return CardInPanel.size(); }
    static double wingsWidth() { return WingsWidth; }

    /// How many dialogs hold the card open. A count, so that one does not release another's hold.
    qint64 holdOpen = 0;

Q_SIGNALS:
    void isExpandedChanged();
    void tabChanged();
    void isPinnedChanged();
    void isDropTargetedChanged();
    void notchSizeChanged();
    void hasNotchChanged();
    void isMotionReducedChanged();
    void isLockedChanged();

private:
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchModel, bool, m_isExpanded, false,
                                         &NotchModel::isExpandedChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchModel, Tab, m_tab, Tab::Home, &NotchModel::tabChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchModel, bool, m_isPinned, false,
                                         &NotchModel::isPinnedChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchModel, bool, m_isDropTargeted, false,
                                         &NotchModel::isDropTargetedChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchModel, QSizeF, m_notchSize, QSizeF(200, 32),
                                         &NotchModel::notchSizeChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchModel, bool, m_hasNotch, true,
                                         &NotchModel::hasNotchChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchModel, bool, m_isMotionReduced, false,
                                         &NotchModel::isMotionReducedChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchModel, bool, m_isLocked, false,
                                         &NotchModel::isLockedChanged)
};

} // namespace quib
