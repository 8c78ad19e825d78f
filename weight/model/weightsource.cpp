// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightsource.h"

#include "storage/ansitext.h"
#include "weight/model/personfiles.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

WeightSource::WeightSource(const DataFolder &folder)
    : m_folder(folder)
{}

bool WeightSource::prepare()
{
    if (!m_isChecking) {
        m_names = PersonFiles(m_folder).names();
        m_unchecked = m_names;
        std::erase_if(m_persons, [this](const auto &person) { return !m_names.contains(person.first); });
        m_isChecking = true;
    }
    while (!m_unchecked.isEmpty()) {
        const QString name = m_unchecked.takeFirst();
        const FileStamp now = FileStamp::of(m_folder, {PersonFiles::fileName(name)});
        const auto known = m_persons.find(name);
        if (known != m_persons.end() && known->second.seen == now)
            continue;
        Person person = read(name);
        person.seen = now;
        m_persons.insert_or_assign(name, std::move(person));
        return true;
    }
    m_isChecking = false;
    return false;
}

WeightSource::Person WeightSource::read(const QString &name) const
{
    Person person;
    const auto add = [&person](const QString &line, const QString &context) {
        person.texts.addLine(AnsiText::encode(line));
        person.contexts.push_back(context);
    };
    const WeightSheet sheet = PersonFiles(m_folder).read(name).sheet;
    const QString exercises = sheet.field(WeightSheet::ExerciseTypes).simplified();
    person.texts.beginText();
    add(name, exercises);
    add(exercises, exercises);
    for (const QString &line : sheet.shownComments().split(u'\n'))
        add(line, line.simplified());
    person.texts.squeeze();
    return person;
}

QList<SearchHit> WeightSource::matches(QStringView text, int most) const
{
    const TextIndex::Words words(text);
    std::array<QList<SearchHit>, TextIndex::rankCount> found;
    for (qsizetype place = 0; place < m_names.size(); ++place) {
        const auto person = m_persons.find(m_names[place]);
        if (person == m_persons.end())
            continue;
        person->second.texts.find(words, [&](const TextIndex::Hit &hit) {
            found[std::size_t(hit.rank)].append(SearchHit{
                m_names[place], person->second.contexts[std::size_t(hit.line)], {.record = int(place) + 1}});
            return false;
        });
    }
    QList<SearchHit> hits;
    for (const QList<SearchHit> &like : found)
        hits += like.first(std::min<qsizetype>(like.size(), most - hits.size()));
    return hits;
}
