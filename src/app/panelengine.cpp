#include "app/panelengine.h"

using namespace Qt::StringLiterals;

namespace quib {

PanelEngine::PanelEngine(QObject* parent)
    : QQmlEngine(parent)
{
    addImportPath(u"qrc:/qt/qml"_s);
    m_root.loadUrl(rootSource(), QQmlComponent::Asynchronous);
}

QUrl PanelEngine::rootSource()
{
    return {u"qrc:/qt/qml/Quib/Views/NotchRootView.qml"_s};
}

} // namespace quib
