// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/csvmodel.h"

#include "cars/model/carrows.h"
#include "cars/model/csvlines.h"
#include "shell/controls/gridcell.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString whatBecomesOf(const CarCsvLine &line, CarPart part)
{
    switch (line.state) {
    case CarCsvLine::Ready:
        return line.isChosen ? u"Will be taken"_s : line.isBare ? CsvLines::nothingDone(part) : u"Left out"_s;
    case CarCsvLine::Duplicate:
        return line.isChosen ? u"Will be taken again"_s : u"Is there already"_s;
    case CarCsvLine::Full:
        return u"No room for it"_s;
    case CarCsvLine::NotRead:
        return u"Not read: "_s + line.problem;
    }
    Q_UNREACHABLE();
}

bool mayBeTaken(const CarCsvLine &line)
{
    return line.state == CarCsvLine::Ready || line.state == CarCsvLine::Duplicate;
}

} // namespace

/// The number of the line, the columns of the grid, what becomes of it.
void CsvModel::show(CarCsvImport *import, CarPart part, DistanceUnit unit)
{
    beginResetModel();
    m_import = import;
    m_part = part;
    m_headings =
        QStringList{u"Line"_s} + CarRows::headings(part, unit) + QStringList{u"What becomes of it"_s};
    m_inFile = QStringList(m_headings.size());
    const QStringList names = import ? import->fileColumns() : QStringList();
    for (int column = 0; import && column < CarRows::columnCount(part); ++column) {
        const QString name = names.value(import->placeOf(column));
        if (name != m_headings[column + 1])
            m_inFile[column + 1] = name;
    }
    endResetModel();
}

void CsvModel::toggle(int row)
{
    if (!mayBeTaken(line(row)))
        return;
    m_import->setChosen(std::size_t(row), !line(row).isChosen);
    // Another line may have room now.
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    emit chosenChanged();
}

int CsvModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || !m_import ? 0 : int(m_import->lines().size());
}

int CsvModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_headings.size());
}

bool CsvModel::isNumber(int section) const
{
    const int column = section - 1;
    return column >= 0 && column < CarRows::columnCount(m_part) && column != CarRows::dateColumn(m_part) &&
           (m_part == CarPart::Fuel || column != 2);
}

QVariant CsvModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const CarCsvLine &of = line(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        if (index.column() == 0)
            return QString::number(of.number);
        return index.column() == columnCount() - 1 ? whatBecomesOf(of, m_part)
                                                   : of.cells.value(index.column() - 1);
    case Qt::TextAlignmentRole:
        return headerData(index.column(), Qt::Horizontal, role);
    case Qt::CheckStateRole:
        return flags(index).testFlag(Qt::ItemIsUserCheckable)
                   ? QVariant(of.isChosen ? Qt::Checked : Qt::Unchecked)
                   : QVariant();
    default:
        return {};
    }
}

QVariant CsvModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter | (isNumber(section) ? Qt::AlignRight : Qt::AlignLeft));
    if (role == GridCell::groupRole)
        return m_inFile.value(section);
    if (role == Qt::ToolTipRole && !m_inFile.value(section).isEmpty())
        return CsvLines::columnIs(m_headings.value(section), m_inFile.value(section));
    return role == Qt::DisplayRole ? m_headings.value(section) : QVariant();
}

Qt::ItemFlags CsvModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool isTickable = index.isValid() && index.column() == 0 && mayBeTaken(line(index.row()));
    return isTickable ? flags | Qt::ItemIsUserCheckable : flags;
}

bool CsvModel::setData(const QModelIndex &index, const QVariant &, int role)
{
    if (role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsUserCheckable))
        return false;
    toggle(index.row());
    return true;
}
