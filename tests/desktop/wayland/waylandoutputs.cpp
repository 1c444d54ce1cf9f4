// Outputs that come and go.
#include "desktop/wayland/waylanddesk.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

/// Sway's own client says in its answer what went wrong.
QString WaylandDesk::tellSway(const QString& order) const
{
    const auto socket
        = QDir(folder(u"runtime"_s)).entryList({u"sway-ipc.*"_s}, QDir::System).value(0);
    const auto tool
        = start(u"swaymsg"_s, {u"-r"_s, u"-s"_s, folder(u"runtime/"_s + socket), order});
    tool->waitForFinished(10'000);
    const auto answer = QJsonDocument::fromJson(tool->readAllStandardOutput()).array();
    if (answer.isEmpty()) {
        return QString::fromUtf8(tool->readAllStandardError());
    }
    const auto error = answer.at(0)["error"_L1].toString();
    return error.isEmpty() ? QString() : u"sway: "_s + error;
}

QString WaylandDesk::setOutputsOfSway(const QList<int>& numbers)
{
    int x = 0;
    m_outputNames.resize(qMax(m_outputNames.size(), numbers.constLast() + 1));
    for (int i = 0; i < m_outputNames.size(); ++i) {
        auto& name = m_outputNames[i];
        QString refusal;
        if (!numbers.contains(i)) {
            refusal = tellSway(u"output %1 unplug"_s.arg(name));
            name.clear();
        } else if (name.isEmpty()) {
            refusal = tellSway(u"create_output"_s);
            name = u"HEADLESS-%1"_s.arg(++m_lastOutput);
        }
        if (!refusal.isEmpty()) {
            return refusal;
        }
        if (!name.isEmpty()) {
            tellSway(u"output %1 position %2 0"_s.arg(name).arg(x));
            x += 1600;
        }
    }
    return {};
}

QString WaylandDesk::setOutputs(const QList<int>& numbers)
{
    QString refusal;
    if (m_options.kind == Kind::Sway) {
        refusal = setOutputsOfSway(numbers);
    } else {
        QStringList words{m_options.kind == Kind::Mutter ? u"mutter"_s : u"kwin"_s};
        for (const auto number : numbers) {
            words << QString::number(number);
        }
        const auto tool = start(QStringLiteral(OUTPUTS), words);
        tool->waitForFinished(10'000);
        refusal = QString::fromUtf8(tool->readAllStandardError());
    }
    tell(u"screens %1 900"_s.arg(1600 * numbers.size()));
    return refusal;
}
