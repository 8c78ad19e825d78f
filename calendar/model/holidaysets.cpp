// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/holidaysets.h"

#include "storage/log.h"
#include "storage/saving.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

// The macro has to stand outside every namespace.
static void initializeHolidays()
{
    Q_INIT_RESOURCE(quillery_holidays);
}

const QString HolidaySets::fileName = u"Holiday1.Fil"_s;

namespace {

constexpr std::array<QLatin1StringView, 13> files{"united-states"_L1,
                                                  "canada"_L1,
                                                  "england-and-wales"_L1,
                                                  "scotland"_L1,
                                                  "northern-ireland"_L1,
                                                  "ireland"_L1,
                                                  "germany"_L1,
                                                  "austria"_L1,
                                                  "france"_L1,
                                                  "netherlands"_L1,
                                                  "sweden"_L1,
                                                  "western-church-year"_L1,
                                                  "orthodox-church-year"_L1};

/// What the file at `path` holds, nothing where it is missing; no value, and a line in the log, where it
/// cannot be read.
std::optional<QByteArray> contentOf(const QString &path)
{
    if (!QFileInfo::exists(path))
        return QByteArray();
    QFile file(path);
    if (QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        const QByteArray bytes = file.readAll();
        if (file.error() == QFile::NoError)
            return bytes;
    }
    qCWarning(storageLog).noquote() << "Cannot read" << path << '-' << file.errorString();
    return {};
}

QString whyLocked(const DataFolder &folder, TabLine::Form form)
{
    switch (form) {
    case TabLine::Later:
        return u"The household's holidays were saved by a later version of Quillery. They are left as they are."_s;
    case TabLine::Foreign:
        return u"%1 cannot be read as holidays. It is left as it is."_s.arg(HolidaySets::fileName);
    case TabLine::Empty:
    case TabLine::Known:
        break;
    }
    return folder.whyReadOnly();
}

} // namespace

HolidaySets::HolidaySets()
{
    initializeHolidays();
    m_builtIn.form = TabLine::Known;
    for (const QLatin1StringView name : files)
        m_builtIn.sets +=
            HolidayFile::read(contentOf(u":/holidays/"_s + name + u".txt"_s).value_or(QByteArray())).sets;
}

HolidaySets HolidaySets::of(const DataFolder &folder)
{
    HolidaySets sets;
    const std::optional<QByteArray> bytes = contentOf(folder.filePath(fileName));
    if (bytes)
        sets.m_own = HolidayFile::read(*bytes);
    else
        sets.m_own.form = TabLine::Foreign;
    sets.m_whyLocked = ::whyLocked(folder, sets.m_own.form);
    return sets;
}

QString HolidaySets::nameFor(QLocale::Territory territory)
{
    switch (territory) {
    case QLocale::UnitedStates:
        return u"United States"_s;
    case QLocale::Canada:
        return u"Canada"_s;
    case QLocale::UnitedKingdom: // its other countries are no regions of their own
        return u"England and Wales"_s;
    case QLocale::Ireland:
        return u"Ireland"_s;
    case QLocale::Germany:
        return u"Germany"_s;
    case QLocale::Austria:
        return u"Austria"_s;
    case QLocale::France:
        return u"France"_s;
    case QLocale::Netherlands:
        return u"Netherlands"_s;
    case QLocale::Sweden:
        return u"Sweden"_s;
    default:
        return {};
    }
}

QStringList HolidaySets::names() const
{
    QStringList names;
    for (const HolidaySet &set : m_builtIn.sets)
        names.append(set.name);
    for (const HolidaySet &set : m_own.sets) {
        if (!set.name.isEmpty() && !isBuiltIn(set.name))
            names.append(set.name);
    }
    return names;
}

const HolidaySet *HolidaySets::set(const QString &name) const
{
    const HolidaySet *own = m_own.set(name);
    return own ? own : m_builtIn.set(name);
}

HolidaySet HolidaySets::builtIn(const QString &name) const
{
    const HolidaySet *set = m_builtIn.set(name);
    return set ? *set : HolidaySet{};
}

QList<HolidayDay> HolidaySets::days(const QStringList &names, QDate from, QDate to) const
{
    QList<HolidayDay> days;
    for (const QString &name : names) {
        if (const HolidaySet *chosen = set(name))
            days += chosen->days(from, to);
    }
    std::ranges::stable_sort(days, {}, &HolidayDay::date);
    QSet<std::pair<QDate, QString>> told;
    days.removeIf([&told](const HolidayDay &day) {
        const std::pair key(day.date, day.text);
        const bool isTold = told.contains(key);
        told.insert(key);
        return isTold;
    });
    return days;
}

bool HolidaySets::save(const DataFolder &folder, const HolidayFile &own)
{
    return Saving::replaceFile(folder, fileName, own.bytes());
}
