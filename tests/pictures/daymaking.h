#pragma once

#include "pictures/day.h"
#include "support/writefile.h"

#include <QImage>
#include <QPainter>

/// What days are made of.
namespace daymaking {

/// That many minutes before now, or after.
inline QDateTime minutesAgo(int minutes)
{
    return Now.addSecs(-60 * minutes);
}

inline quib::TaskItem task(const QString& title, const std::optional<QUuid>& client = {},
                           bool done = false)
{
    return {.id = QUuid::createUuid(),
            .title = title,
            .clientID = client,
            .done = done,
            .created = minutesAgo(600)};
}

/// An entry that began so many minutes ago and took so long.
inline quib::TimeEntry worked(const std::optional<QUuid>& client, int ago, int minutes,
                              const QString& note = {})
{
    return {.id = QUuid::createUuid(),
            .clientID = client,
            .start = minutesAgo(ago),
            .end = minutesAgo(ago - minutes),
            .note = note};
}

inline quib::CalendarEntry meeting(const QString& title, int inMinutes, int minutes, QColor color)
{
    return {.id = title,
            .title = title,
            .start = minutesAgo(-inMinutes),
            .end = minutesAgo(-inMinutes - minutes),
            .color = color};
}

inline quib::LaunchItem launch(const QString& name, const QString& target)
{
    return {.id = QUuid::createUuid(), .name = name, .target = target};
}

inline quib::ShelfItem shelved(const QString& path)
{
    return {.id = QUuid::createUuid(), .path = path};
}

/// An application whose icon is a round of that colour; its path.
inline QString application(const QString& folder, const QString& name, QColor color)
{
    const auto icon = folder + QLatin1Char('/') + name + QStringLiteral(".png");
    QImage image(48, 48, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(2, 2, 44, 44);
    painter.end();
    image.save(icon, "PNG");
    return writeFile(folder + QLatin1Char('/') + name + QStringLiteral(".desktop"),
                     "[Desktop Entry]\nType=Application\nName=" + name.toUtf8()
                         + "\nExec=true\nIcon=" + icon.toUtf8() + "\n");
}

} // namespace daymaking
