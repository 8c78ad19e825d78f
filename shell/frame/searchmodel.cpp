// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/searchmodel.h"

#include "shell/look/theme.h"
#include "shell/program/functionfaces.h"

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int hitsPerGroup = 5;
/// Beyond these nobody reads on: more words find better.
constexpr int mostHits = 100;

} // namespace

SearchModel::SearchModel(Program &program, QObject *parent)
    : QAbstractListModel(parent)
    , m_search(program, nullptr)
{
    connect(&m_search, &HouseholdSearch::progressed, this, &SearchModel::look);
}

void SearchModel::setText(const QString &text)
{
    if (text != m_text)
        m_whole.clear();
    m_text = text;
    if (!text.trimmed().isEmpty())
        m_search.refresh();
    look();
}

/// The rows change only where others were found, so that a choice among them stays while files are read.
void SearchModel::look()
{
    std::vector<Row> rows;
    if (!m_text.trimmed().isEmpty()) {
        const QList<SearchGroup> groups = m_search.find(m_text, mostHits);
        for (const SearchGroup &group : groups)
            addGroup(rows, group);
        std::ranges::move(noteRows(!groups.isEmpty()), std::back_inserter(rows));
    }
    if (rows == m_rows)
        return;
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

void SearchModel::addGroup(std::vector<Row> &rows, const SearchGroup &group) const
{
    const auto row = [&group](Kind kind, const QString &title) {
        return Row{kind, group.function, {title, {}, {}}};
    };
    rows.push_back(row(Head, FunctionFaces::of(group.function).titleText()));
    const auto count = int(group.hits.size());
    // A single hit takes no more room than the line that would tell of it.
    const bool isWhole = m_whole.contains(group.function) || count <= hitsPerGroup + 1;
    const int shown = isWhole ? count : hitsPerGroup;
    for (const SearchHit &hit : group.hits.first(shown))
        rows.push_back({Hit, group.function, hit});
    if (count < mostHits && shown < count)
        rows.push_back(row(More, u"%1 more"_s.arg(count - shown)));
    else if (shown < count)
        rows.push_back(row(More, u"More than %1 more"_s.arg(count - shown)));
    else if (count == mostHits)
        rows.push_back(row(Note, u"The best %1 are shown; another word finds better."_s.arg(mostHits)));
}

/// What is said below the hits, or in their place.
std::vector<SearchModel::Row> SearchModel::noteRows(bool isAnyFound) const
{
    std::vector<Row> rows;
    const auto note = [&rows](const QString &text) { rows.push_back({Note, {}, {text, {}, {}}}); };
    if (!isAnyFound)
        note(m_search.isReading() ? u"Looking..."_s : u"Nothing found."_s);
    if (const QStringList guarded = m_search.guarded(); !guarded.isEmpty())
        note(u"Protected and not searched: "_s + guarded.join(u", "_s));
    return rows;
}

int SearchModel::choosable(int row, int step) const
{
    for (; row >= 0 && row < rowCount(); row += step) {
        if (kind(row) == Hit || kind(row) == More)
            return row;
    }
    return -1;
}

void SearchModel::showAll(int row)
{
    m_whole.insert(function(row));
    look();
}

int SearchModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant SearchModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Row &row = m_rows[std::size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return row.hit.title;
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
        return row.hit.context.isEmpty() ? row.hit.title : row.hit.title + u", "_s + row.hit.context;
    case KindRole:
        return row.kind;
    case ContextRole:
        return row.hit.context;
    case IconRole:
        return row.kind == Head ? Icons::icon(QLatin1StringView(FunctionFaces::of(row.function).icon),
                                              Theme::of(static_cast<QWidget *>(nullptr)).scheme)
                                : QIcon();
    default:
        return {};
    }
}

Qt::ItemFlags SearchModel::flags(const QModelIndex &index) const
{
    const bool isChoosable = index.isValid() && choosable(index.row(), rowCount()) == index.row();
    return isChoosable ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                       : Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
}
