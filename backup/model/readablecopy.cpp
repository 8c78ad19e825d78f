// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/readablecopy.h"

#include "shell/core/csvtext.h"
#include "shell/core/recordlines.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto parting = ": "_L1;
constexpr qsizetype pieceLength = 32 << 10;
/// Records whose lines have more names than this have none in common.
constexpr qsizetype mostColumns = 40;

/// What a line says it is: "Telephone" of "Telephone: 555-0142"; nothing where it is only a text.
QString nameOf(const QString &line)
{
    return line.left(std::max<qsizetype>(line.indexOf(parting), 0));
}

/// The columns, in the order in which the records first have them.
class Columns
{
public:
    void add(const QStringList &lines)
    {
        for (const QString &line : lines) {
            const QString name = nameOf(line);
            if (m_places.contains(name))
                continue;
            m_heads.append(name.isEmpty() ? u"Text"_s : name);
            m_places.insert(name, m_places.size() + 1);
        }
    }

    qsizetype count() const { return m_heads.size(); }
    QStringList heads() const { return QStringList{u"Record"_s} + m_heads; }

    QStringList cells(const QString &title, const QStringList &lines) const
    {
        QStringList cells(m_heads.size() + 1);
        cells.first() = title;
        for (const QString &line : lines) {
            const QString name = nameOf(line);
            const qsizetype place = m_places.value(name);
            if (place == 0)
                continue; // new since the columns were counted
            if (!cells[place].isEmpty())
                cells[place] += u'\n';
            cells[place] += line.sliced(name.isEmpty() ? 0 : name.size() + parting.size());
        }
        return cells;
    }

private:
    QStringList m_heads;
    QHash<QString, qsizetype> m_places; ///< from 1: before them stands the record's title
};

using Visit = std::function<bool(const FunctionRecord &record, const QStringList &lines)>;

void visitLines(const FunctionRecords &records, const Visit &visit)
{
    if (const auto *many = dynamic_cast<const RecordLines *>(&records)) {
        many->visitLines(visit);
        return;
    }
    for (const FunctionRecord &record : records.all()) {
        if (!visit(record, records.lines(record.key)))
            return;
    }
}

/// Texts that are collected before they are given away.
class Pieces
{
public:
    explicit Pieces(const std::function<bool(QByteArrayView bytes)> &take)
        : m_take(take)
    {}

    bool isWanted() const { return m_isWanted; }
    bool add(const QByteArray &bytes)
    {
        m_bytes += bytes;
        return m_bytes.size() < pieceLength ? m_isWanted : give();
    }
    bool give()
    {
        m_isWanted = m_isWanted && m_take(m_bytes);
        m_bytes.clear();
        return m_isWanted;
    }

private:
    const std::function<bool(QByteArrayView bytes)> &m_take;
    QByteArray m_bytes;
    bool m_isWanted = true;
};

/// The columns of a table; nothing where the records have no lines in common, as days have not.
std::optional<Columns> columnsOf(const FunctionRecords &records, Pieces &pieces)
{
    if (!dynamic_cast<const RecordLines *>(&records))
        return std::nullopt;
    Columns columns;
    visitLines(records, [&](const FunctionRecord &, const QStringList &lines) {
        columns.add(lines);
        return columns.count() <= mostColumns && pieces.give();
    });
    return columns.count() <= mostColumns ? std::optional(columns) : std::nullopt;
}

} // namespace

bool ReadableCopy::write(const FunctionRecords &records,
                         const std::function<bool(QByteArrayView bytes)> &take)
{
    Pieces pieces(take);
    const std::optional<Columns> columns = columnsOf(records, pieces);
    const QStringList heads = columns ? columns->heads() : QStringList{u"Record"_s, u"Text"_s};
    if (!pieces.isWanted() || !pieces.add(CsvText::file(CsvText::line(heads))))
        return false;
    visitLines(records, [&](const FunctionRecord &record, const QStringList &lines) {
        if (columns)
            return pieces.add(CsvText::line(columns->cells(record.title, lines)).toUtf8());
        QString rows;
        for (const QString &line : lines)
            rows += CsvText::line({record.title, line});
        return pieces.add(rows.toUtf8());
    });
    return pieces.give();
}
