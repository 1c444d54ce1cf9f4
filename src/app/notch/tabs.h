#pragma once

#include "app/notch/tab.h"

#include <QList>
#include <QObject>

#include <qqmlintegration.h>

namespace quib {

/// What views ask about tabs.
class Tabs : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QList<int> all READ all CONSTANT)

public:
    using QObject::QObject;

    /// In the order of the tab bar.
    static QList<int> all();

    Q_INVOKABLE static QString title(quib::tabs::Tab tab) { return quib::title(tab); }
    Q_INVOKABLE static quib::tabs::Tab beside(quib::tabs::Tab tab, int by)
    {
        return tabBeside(tab, by);
    }
    Q_INVOKABLE static QString symbol(quib::tabs::Tab tab) { return quib::symbol(tab); }
};

} // namespace quib
