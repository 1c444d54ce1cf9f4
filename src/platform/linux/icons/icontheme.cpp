#include "platform/linux/icons/icontheme.h"

#include "platform/linux/base/keyfile.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <climits>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

const auto LastTheme = u"hicolor"_s;
constexpr qsizetype MostThemes = 20; // One may inherit from itself, or from endlessly many.
constexpr int LargestSize = 10'000;
constexpr int LargestScale = 100;

enum class Sizes { Fixed, Scalable, Threshold };

/// A folder of a theme, with the icons of one size or of a range.
struct Folder {
    QString path; ///< Below each place of the theme.
    Sizes sizes = Sizes::Threshold;
    int size = 0;
    int scale = 1;
    int smallest = 0;
    int largest = 0;
};

struct Theme {
    QStringList places; ///< One below each root that has it.
    QStringList parents;
    std::vector<Folder> folders;
};

/// A file that was found, and how far it is from what was wanted.
struct Find {
    QString file;
    int distance = INT_MAX;
};

Sizes sizesOf(const QString& type)
{
    return type == "Fixed"_L1   ? Sizes::Fixed
        : type == "Scalable"_L1 ? Sizes::Scalable
                                : Sizes::Threshold;
}

Folder folderOf(const KeyFile& index, const QString& path)
{
    Folder folder{.path = path, .sizes = sizesOf(index.text(path, "Type"))};
    const auto size = [&](const char* key, int otherwise) {
        return std::clamp(index.number(path, key, otherwise), 0, LargestSize);
    };
    folder.size = size("Size", 0);
    folder.scale = std::clamp(index.number(path, "Scale", 1), 1, LargestScale);
    folder.smallest = folder.largest = folder.size;
    if (folder.sizes == Sizes::Scalable) {
        folder.smallest = size("MinSize", folder.size);
        folder.largest = size("MaxSize", folder.size);
    } else if (folder.sizes == Sizes::Threshold) {
        const int threshold = size("Threshold", 2);
        folder.smallest -= threshold;
        folder.largest += threshold;
    }
    return folder;
}

/// Of the folder that a path should stay below.
bool leadsOut(const QString& path)
{
    return path.split(u'/').contains(".."_L1);
}

Theme readTheme(const QString& name, const QStringList& roots)
{
    Theme theme;
    for (const auto& root : roots) {
        const auto place = root + u'/' + name;
        if (QFileInfo(place).isDir()) {
            theme.places << place;
        }
    }
    const auto hasIndex
        = [](const QString& place) { return QFileInfo::exists(place + "/index.theme"_L1); };
    const auto place = std::ranges::find_if(theme.places, hasIndex);
    if (place == theme.places.end()) {
        return theme;
    }
    const KeyFile index(*place + "/index.theme"_L1);
    const auto group = u"Icon Theme"_s;
    theme.parents = index.list(group, "Inherits");
    theme.parents.removeIf(leadsOut);
    auto folders = index.list(group, "Directories") + index.list(group, "ScaledDirectories");
    folders.removeIf(leadsOut);
    for (const auto& path : std::as_const(folders)) {
        theme.folders.push_back(folderOf(index, path));
    }
    return theme;
}

/// Zero for a folder that is made for such pictures.
int distance(const Folder& folder, int pixels)
{
    if (folder.scale == 1 && folder.smallest <= pixels && pixels <= folder.largest) {
        return 0;
    }
    const int below = folder.smallest * folder.scale - pixels;
    const int above = pixels - folder.largest * folder.scale;
    return std::max({1, below, above}); // One made for another scale is never quite right.
}

/// The picture of that name in a folder; empty when there is none.
QString pictureIn(const QString& folder, const QString& name)
{
    for (const auto suffix : {".png"_L1, ".svg"_L1, ".xpm"_L1}) {
        auto file = folder + u'/' + name + suffix;
        if (QFileInfo(file).isFile()) {
            return file;
        }
    }
    return {};
}

QString nearest(const Theme& theme, const QString& name, int pixels)
{
    Find best;
    for (const auto& folder : theme.folders) {
        const int far = distance(folder, pixels);
        if (far >= best.distance) {
            continue;
        }
        for (const auto& place : theme.places) {
            if (auto file = pictureIn(place + u'/' + folder.path, name); !file.isEmpty()) {
                best = {.file = file, .distance = far};
                break;
            }
        }
        if (best.distance == 0) {
            break;
        }
    }
    return best.file;
}

/// Each theme before those that it inherits from, and hicolor last.
std::vector<Theme> themesOf(const IconPlaces& places)
{
    std::vector<Theme> themes;
    QStringList known;
    QStringList next{places.theme};
    while (!next.isEmpty() && known.size() < MostThemes) {
        const auto name = next.takeFirst();
        if (name == LastTheme || known.contains(name)) {
            continue;
        }
        known << name;
        themes.push_back(readTheme(name, places.roots));
        next = themes.back().parents + next;
    }
    themes.push_back(readTheme(LastTheme, places.roots));
    return themes;
}

QString findOne(const QString& name, int pixels, const std::vector<Theme>& themes,
                const QStringList& roots)
{
    for (const auto& theme : themes) {
        if (auto file = nearest(theme, name, pixels); !file.isEmpty()) {
            return file;
        }
    }
    for (const auto& root : roots) {
        if (auto file = pictureIn(root, name); !file.isEmpty()) {
            return file;
        }
    }
    return {};
}

} // namespace

IconPlaces iconPlaces(const QString& wishedTheme)
{
    QStringList roots{QDir::homePath() + "/.icons"_L1};
    for (const auto& data :
         QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
        if (QDir::isAbsolutePath(data)) {
            roots << data + "/icons"_L1;
        }
    }
    roots << u"/usr/share/pixmaps"_s;
    const auto isInstalled = [&roots](const QString& theme) {
        return !theme.isEmpty() && !leadsOut(theme)
            && std::ranges::any_of(roots, [&theme](const QString& root) {
                   return QFileInfo::exists(root + u'/' + theme + "/index.theme"_L1);
               });
    };
    const std::array candidates{wishedTheme, u"Adwaita"_s, u"breeze"_s};
    const auto found = std::ranges::find_if(candidates, isInstalled);
    return {.theme = found == candidates.end() ? LastTheme : *found, .roots = roots};
}

QString findIcon(const QStringList& names, int pixels, const IconPlaces& places)
{
    const auto themes = themesOf(places);
    for (const auto& name : names) {
        if (name.isEmpty() || name.contains(u'/')) {
            continue; // No name could lead out of the themes.
        }
        if (auto file = findOne(name, pixels, themes, places.roots); !file.isEmpty()) {
            return file;
        }
    }
    return {};
}

} // namespace quib
