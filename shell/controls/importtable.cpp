// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/importtable.h"

#include "shell/controls/gridcell.h"
#include "shell/core/csvcolumns.h"
#include "shell/core/importlines.h"
#include "shell/core/incomingfile.h"

using namespace Qt::Literals::StringLiterals;

void ImportTable::begin(IncomingFile &file)
{
    beginResetModel();
    m_file = &file;
    m_shown.clear();
    m_headings = QStringList{u"Line"_s} + file.headings() + QStringList{u"What becomes of it"_s};
    m_inFile = QStringList(m_headings.size());
    const CsvColumns *columns = file.columns();
    const QStringList names = columns ? columns->fileNames() : QStringList();
    for (int column = 0; columns && column < columns->count(); ++column) {
        const QString name = names.value(columns->placeOf(column));
        if (name != m_headings[column + 1])
            m_inFile[column + 1] = name;
    }
    endResetModel();
}

void ImportTable::showLines()
{
    beginResetModel();
    m_shown.clear();
    for (std::size_t line = 0; m_file && line < m_file->lineCount(); ++line) {
        if (m_filter <= 0 || m_file->isIn(line, m_filter))
            m_shown.push_back(line);
    }
    endResetModel();
}

void ImportTable::toggle(int row)
{
    const std::size_t toggled = line(row);
    if (!m_file->mayBeTaken(toggled))
        return;
    m_file->setChosen(toggled, !m_file->isChosen(toggled));
    linesChanged(); // another one may have room now
}

void ImportTable::linesChanged()
{
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    emit chosenChanged();
}

int ImportTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int ImportTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_headings.size());
}

Qt::Alignment ImportTable::alignment(int section) const
{
    const bool isCell = section > 0 && section < columnCount() - 1;
    const bool isRight = isCell && m_file && m_file->isNumber(section - 1);
    return Qt::AlignVCenter | (isRight ? Qt::AlignRight : Qt::AlignLeft);
}

QVariant ImportTable::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const std::size_t of = line(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        if (index.column() == 0)
            return QString::number(m_file->lineNumber(of));
        return index.column() == columnCount() - 1 ? m_file->whatBecomesOf(of)
                                                   : m_file->cell(of, index.column() - 1);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(alignment(index.column()));
    case Qt::CheckStateRole:
        return flags(index).testFlag(Qt::ItemIsUserCheckable)
                   ? QVariant(m_file->isChosen(of) ? Qt::Checked : Qt::Unchecked)
                   : QVariant();
    default:
        return {};
    }
}

QVariant ImportTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(alignment(section));
    if (role == GridCell::groupRole)
        return m_inFile.value(section);
    if (role == Qt::ToolTipRole && !m_inFile.value(section).isEmpty())
        return ImportLines::columnIs(m_headings.value(section), m_inFile.value(section));
    return role == Qt::DisplayRole ? m_headings.value(section) : QVariant();
}

Qt::ItemFlags ImportTable::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool isTickable = index.isValid() && index.column() == 0 && m_file->mayBeTaken(line(index.row()));
    return isTickable ? flags | Qt::ItemIsUserCheckable : flags;
}

bool ImportTable::setData(const QModelIndex &index, const QVariant & /*value*/, int role)
{
    if (role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsUserCheckable))
        return false;
    toggle(index.row());
    return true;
}
