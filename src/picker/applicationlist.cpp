#include "picker/applicationlist.h"

#include <QIcon>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr qsizetype LongestName = 200;

QIcon iconNamed(const QString& name)
{
    const auto usual = QIcon::fromTheme(u"application-x-executable"_s);
    if (!name.startsWith(u'/')) {
        return QIcon::fromTheme(name, usual);
    }
    const QIcon picture(name);
    return picture.availableSizes().isEmpty() && !name.endsWith(u".svg"_s) ? usual : picture;
}

} // namespace

ApplicationList::ApplicationList(const QList<Application>& applications, QObject* parent)
    : QAbstractListModel(parent)
    , m_applications(applications)
{
}

int ApplicationList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_applications.size());
}

QVariant ApplicationList::data(const QModelIndex& index, int role) const
{
    const auto application = m_applications.value(index.row());
    switch (role) {
    case Qt::DisplayRole: return application.name.left(LongestName);
    case Qt::DecorationRole: return iconNamed(application.icon);
    case PathRole: return application.path;
    default: return {};
    }
}

} // namespace quib
