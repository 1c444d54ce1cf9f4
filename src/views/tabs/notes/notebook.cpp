#include "views/tabs/notes/notebook.h"

#include "model/locale/datetexts.h"
#include "model/texts/timestamp.h"

#include <QClipboard>
#include <QGuiApplication>

namespace quib {

void Notebook::setStore(Store* store)
{
    if (m_store != store) {
        m_store = store;
        Q_EMIT storeChanged();
    }
}

void Notebook::copyAll() const
{
    if (m_store) {
        QGuiApplication::clipboard()->setText(m_store->notes());
    }
}

QString Notebook::timestamp() const
{
    if (!m_store) {
        return {};
    }
    const auto moment = DateTexts(m_store->locale()).dayAndTime(m_store->now());
    return quib::timestamp(m_store->notes(), moment);
}

} // namespace quib
