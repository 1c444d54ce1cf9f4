#pragma once

#include <QQmlComponent>
#include <QQmlEngine>

namespace quib {

/// The QML engine of a panel. It begins to read the root view on a thread of its own as soon as it
/// is made; who makes a view with rootSource() waits for what is left of that.
class PanelEngine : public QQmlEngine {
public:
    explicit PanelEngine(QObject* parent = nullptr);

    static QUrl rootSource();

private:
    QQmlComponent m_root{this};
};

} // namespace quib
