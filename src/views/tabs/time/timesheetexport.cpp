#include "views/tabs/time/timesheetexport.h"

namespace quib {

void TimesheetExport::setStore(Store* store)
{
    if (m_store != store) {
        m_store = store;
        Q_EMIT storeChanged();
    }
}

void TimesheetExport::write()
{
    const auto file = m_store ? m_store->exportTimesheet() : std::nullopt;
    if (file) {
        setExported(*file);
        Q_EMIT written(file->toLocalFile());
    }
}

void TimesheetExport::forget()
{
    setExported({});
}

void TimesheetExport::setExported(const QUrl& file)
{
    if (m_exported != file) {
        m_exported = file;
        Q_EMIT exportedChanged();
    }
}

} // namespace quib
