#pragma once

#include "platform/linux/files/diskprobe.h"

#include <QTest>

#include <optional>

/// What the probe answers, waited for.
inline quib::FilePresence presenceOf(const QString& path, quib::DiskProbe& probe)
{
    std::optional<quib::FilePresence> answer;
    probe.ask(path, [&answer](quib::FilePresence presence) { answer = presence; });
    [[maybe_unused]] const bool came = QTest::qWaitFor([&] { return answer.has_value(); }, 30'000);
    return answer.value();
}
