// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keepernews.h"

#include "keeper/model/keeperfiles.h"

#include <QtEndian>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int daysAhead = 30;

/// How many of the documents whose dates are told in the open expire soon.
int expiringSoon(const QByteArray &record, QDate today)
{
    constexpr qsizetype length = sizeof(quint32);
    if (record.size() != KeySlots::recordLength)
        return 0;
    const auto count = qsizetype(qFromLittleEndian<quint32>(record.data()));
    if (count > record.size() / length - 1)
        return 0;
    int soon = 0;
    for (qsizetype i = 1; i <= count; ++i) {
        const QDate date = QDate(1970, 1, 1).addDays(qFromLittleEndian<qint32>(record.data() + i * length));
        soon += date >= today && date <= today.addDays(daysAhead) ? 1 : 0;
    }
    return soon;
}

} // namespace

std::optional<LiveLine> KeeperNews::liveLine(const DataFolder &folder, bool isOpen, QDate today)
{
    using State = KeeperFiles::State;
    const State state = KeeperFiles::state(folder);
    if (state == State::None || state == State::Foreign)
        return std::nullopt;
    if (state == State::KeyFileDamaged || state == State::FileMissing)
        return LiveLine{.text = u"The keeper's files are damaged"_s,
                        .urgency = LiveLine::Overdue,
                        .sentence = {},
                        .shorter = {u"Its files are damaged"_s}};
    const int soon =
        state == State::Newer ? 0 : expiringSoon(KeeperFiles::keySlots(folder).openRecord(), today);
    if (soon > 0)
        return LiveLine{
            .text = soon == 1 ? u"1 document expires within 30 days"_s
                              : u"%1 documents expire within 30 days"_s.arg(soon),
            .urgency = LiveLine::Due,
            .sentence = {},
            .shorter = {soon == 1 ? u"1 document expires soon"_s : u"%1 documents expire soon"_s.arg(soon)}};
    return LiveLine{.text = isOpen ? u"Open"_s : u"Locked"_s, .sentence = {}};
}
