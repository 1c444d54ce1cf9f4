#include "picker/applicationlist.h"

#include "brand/brand.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr qsizetype LongestName = 200;

/// A quiet square, for where even the theme has nothing.
QIcon blank()
{
    constexpr int Side = 64;
    constexpr double Margin = 6;
    QPixmap square(Side, Side);
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Brand::muted2());
    painter.drawRoundedRect(QRectF(square.rect()).marginsRemoved({Margin, Margin, Margin, Margin}),
                            2 * Margin, 2 * Margin);
    return {square};
}

QIcon usual()
{
    return QIcon::fromTheme(u"application-x-executable"_s, blank());
}

QIcon iconNamed(const QString& name)
{
    if (!name.startsWith(u'/')) {
        return QIcon::fromTheme(name, usual());
    }
    const QIcon picture(name);
    return picture.availableSizes().isEmpty() && !name.endsWith(u".svg"_s) ? usual() : picture;
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
