#pragma once

#include "pictures/day.h"
#include "pictures/panelforpicture.h"

#include <QColor>

#include <optional>

/// One picture that is kept.
struct Scene {
    QString name; ///< Without its scale.
    DayMaker day = emptyDay;
    std::optional<quib::Tab> tab; ///< Absent when collapsed.
    QColor desktop = QColorConstants::Svg::darkslategray; ///< Behind the open card.
    void (*prepare)(PanelForPicture&) = nullptr;
    double scale = 1;
    QString locale = QStringLiteral("en_GB.UTF-8");

    QString title() const;
    QString file() const;
};
Q_DECLARE_METATYPE(Scene)

/// All of them.
QList<Scene> scenes();
