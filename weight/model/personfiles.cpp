// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/personfiles.h"

#include "shell/core/reservednames.h"
#include "shell/pictures/picturefolder.h"
#include "storage/ansitext.h"
#include "storage/log.h"
#include "storage/valuefile.h"
#include "weight/model/messages.h"
#include "weight/model/personlist.h"
#include "weight/model/weightdates.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

using State = PersonFiles::State;

const QString trashKind = u"Weights"_s;
const QString ending = u".Fil"_s;

constexpr qsizetype longestName = 100;

/// The values in front of the weigh-ins, in the order of the file: the number of rows, then these.
constexpr std::array fileFields{WeightSheet::BeginningDate,      WeightSheet::BeginningWeight,
                                WeightSheet::GoalWeight,         WeightSheet::DaysPerWeek,
                                WeightSheet::TimePerPeriod,      WeightSheet::ExerciseTypes,
                                WeightSheet::BeginningPhotoDate, WeightSheet::CurrentPhotoDate};
constexpr qsizetype headValues = 1 + fileFields.size() + 3;

/// The number of rows, heading included, that a file says it has; -1 where it says none.
qsizetype countIn(const QString &text)
{
    bool isNumber = false;
    const int count = text.trimmed().toInt(&isNumber);
    return isNumber && count >= 0 ? count : -1;
}

} // namespace

QString PersonFiles::fileName(const QString &name)
{
    return AnsiText::trimmedBlanks(name) + ending;
}

QStringList PersonFiles::names() const
{
    const QStringList listed = PersonList(m_folder).names();
    return listed.isEmpty() ? unlisted() : listed;
}

QStringList PersonFiles::unlisted() const
{
    const QStringList listed = PersonList(m_folder).names();
    QStringList names;
    for (const QString &file : QDir(m_folder.path()).entryList({u'*' + ending}, QDir::Files, QDir::Name)) {
        const QString name = file.chopped(ending.size());
        if (PersonList::place(listed, name) > 0 || whyNotNamed(name))
            continue;
        const State state = read(name).state;
        if (state == State::Whole || state == State::Cut)
            names.append(name);
    }
    return names;
}

PersonFiles::Found PersonFiles::read(const QString &name) const
{
    Found found;
    const QString path = m_folder.filePath(fileName(name));
    if (whyNotNamed(name)) {
        found.state = State::Foreign;
    } else if (QFile file(path); QFileInfo::exists(path)) {
        found.state = State::OutOfReach;
        if (QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            const QByteArray bytes = file.readAll();
            if (file.error() == QFile::NoError)
                found = decode(bytes);
        }
    }
    found.sheet.field(WeightSheet::Name) = name;
    return found;
}

PersonFiles::Found PersonFiles::decode(QByteArrayView bytes)
{
    const QStringList values = ValueFile::decode(bytes);
    Found found;
    if (values.isEmpty()) {
        found.state = State::Empty;
        return found;
    }
    const qsizetype count = countIn(values.front());
    if (count < 0) {
        found.state = State::Foreign;
        return found;
    }
    qsizetype at = 1;
    for (const WeightSheet::Field field : fileFields)
        found.sheet.field(field) = values.value(at++);
    found.sheet.comments = values.value(at++);
    found.sheet.beginningPicture = values.value(at++);
    found.sheet.currentPicture = values.value(at++);
    for (qsizetype row = 1; at < values.size(); ++row, at += 2) {
        WeightTable &table = row < count ? found.sheet.weighIns : found.uncounted;
        table.append({values[at], values.value(at + 1)});
    }
    const bool isCut = values.size() < headValues || found.sheet.weighIns.rowCount() + 1 < count;
    found.state = isCut ? State::Cut : State::Whole;
    return found;
}

QByteArray PersonFiles::encode(const WeightSheet &sheet)
{
    QStringList values{QString::number(sheet.weighIns.rowCount() + 1)};
    for (const WeightSheet::Field field : fileFields)
        values.append(sheet.field(field));
    values << sheet.comments << sheet.beginningPicture << sheet.currentPicture;
    for (qsizetype row = 0; row < sheet.weighIns.rowCount(); ++row)
        values << sheet.weighIns.date(row) << sheet.weighIns.weight(row);
    return ValueFile::encode(values);
}

std::optional<Message> PersonFiles::whyNotNamed(const QString &name)
{
    const QString text = AnsiText::trimmedBlanks(name).toString();
    if (text.trimmed().isEmpty())
        return WeightMessages::nameMissing();
    if (const QString foreign = AnsiText::foreignCharacters(text); !foreign.isEmpty())
        return WeightMessages::nameForeign(foreign);
    QString forbidden;
    for (const QChar c : text) {
        if ((c < u' ' || u"\\/:*?\"<>|"_s.contains(c)) && !forbidden.contains(c))
            forbidden += c;
    }
    if (!forbidden.isEmpty())
        return WeightMessages::nameNoFile(forbidden);
    if (text.startsWith(u'.'))
        return WeightMessages::nameHidden();
    if (text.size() > longestName)
        return WeightMessages::nameTooLong();
    if (ReservedNames::isReserved(text) || ReservedNames::isDevice(text) ||
        ReservedNames::isProgramFile(text))
        return WeightMessages::nameReserved(text + ending);
    return {};
}

std::optional<Message> PersonFiles::whyNotNew(const QString &name, const QString &former) const
{
    if (auto refusal = whyNotNamed(name))
        return refusal;
    const QString text = AnsiText::trimmedBlanks(name).toString();
    const bool isSame = text.compare(former.trimmed(), Qt::CaseInsensitive) == 0;
    const bool isThere = m_folder.exists(fileName(text)) || PersonList::place(names(), text) > 0;
    return isThere && !isSame ? std::optional(WeightMessages::nameTaken(text)) : std::nullopt;
}
