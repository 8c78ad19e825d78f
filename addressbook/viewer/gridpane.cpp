// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/viewer/gridpane.h"

#include "addressbook/model/viewerlines.h"
#include "addressbook/model/viewermessages.h"
#include "shell/controls/busycursor.h"
#include "shell/controls/controls.h"
#include "shell/controls/emptypage.h"
#include "shell/controls/gridview.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QSettings>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A book with more lines than this shows its first rows at once and the others a moment later.
constexpr int firstRows = 200;
constexpr int leastSearchTextShown = 120;
constexpr int widestNameColumn = 352; ///< unless the user wants more
constexpr int leastNameColumn = 160;
constexpr int leastInformationColumn = 120;
constexpr double nameColumnShare = 0.42;

QString nameColumnKey()
{
    return u"Windows/ADDBKDISPLAY/nameColumn"_s;
}

} // namespace

GridPane::GridPane(Program &program, QWidget *parent)
    : QWidget(parent)
    , m_store(program.store)
    , m_rows(new AddressGrid(program.folder, program.state.dateStyle, this))
    , m_grid(named(new GridView(AddressGrid::LinkRole, this), u"VSFlexGrid1"_s))
{
    m_grid->setAccessibleName(u"Names and information"_s);
    m_grid->setModel(m_rows);
    m_rowsAndFoot = new WholeRows(m_grid, makeFoot(), this);
    m_emptyBook = named(new EmptyPage("address-book"_L1, u"Nobody is in the address book yet"_s,
                                      u"Whoever is typed in on its Entry Screen is shown here."_s, this),
                        u"emptyBook"_s);
    m_emptyBook->hide();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_rowsAndFoot);
    layout->addWidget(m_emptyBook);
    setFocusProxy(m_grid);
    connectGrid();
    rememberNameColumn();
}

/// How many names there are, and why so many.
QWidget *GridPane::makeFoot()
{
    auto *foot = new QWidget(this);
    m_count = named(makeQuietLabel({}, foot), u"nameCount"_s);
    m_count->setFont(TypeScale::body());
    m_mode = makeButton(u"displayMode"_s, {}, foot);
    m_mode->setToolTip(u"Shows all names again after a search, or leads to the search"_s);
    m_foot = new QHBoxLayout(foot);
    m_foot->setContentsMargins({});
    m_foot->addWidget(m_count);
    m_foot->addStretch(1);
    m_foot->addWidget(m_mode, 0, Qt::AlignRight);
    return foot;
}

void GridPane::connectGrid()
{
    connect(m_mode, &QPushButton::clicked, this, &GridPane::modeRequested);
    connect(m_rows, &AddressGrid::modelAboutToBeReset, this, &GridPane::keepPlace);
    connect(m_rows, &AddressGrid::modelReset, this, &GridPane::followRows);
    connect(m_grid->selectionModel(), &QItemSelectionModel::currentChanged, this, &GridPane::currentChanged);
    connect(m_grid, &GridView::opened, this, &GridPane::opened);
    connect(m_grid, &GridView::linkFollowed, this,
            [this](const QModelIndex &index) { emit linkFollowed(index.data().toString()); });
    connect(m_grid, &GridView::firstPainted, this, &GridPane::loadRest);
    connect(m_grid, &GridView::resized, this, &GridPane::placeNameColumn);
    connect(m_grid, &GridView::resized, this, &GridPane::refreshMode);
}

int GridPane::row() const
{
    return m_rows->isEmpty() ? -1 : m_grid->currentIndex().row();
}

QString GridPane::whyNoRows() const
{
    return m_rows->isEmpty() ? ViewerLines::nothingShown() : QString();
}

QString GridPane::whyNoRow() const
{
    return !m_rows->isEmpty() && row() < 0 ? ViewerLines::chooseNameFirst() : whyNoRows();
}

QString GridPane::whyNoEntry() const
{
    const bool isUnreadable = row() >= 0 && current().record <= 0;
    return isUnreadable ? ViewerLines::noEntry() : whyNoRow();
}

QString GridPane::whyNoOrder() const
{
    const bool isPictures = viewer().information() == Information::Pictures;
    return isPictures ? ViewerLines::nothingToSortBy() : QString();
}

QString GridPane::whyNoCall() const
{
    const Information shown = viewer().information();
    const bool isTelephone = shown == Information::HomePhone || shown == Information::MobilePhone ||
                             shown == Information::FaxNumber;
    return isTelephone ? whyNoRow() : ViewerLines::chooseTelephones();
}

QString GridPane::whyNoMail() const
{
    if (viewer().information() != Information::EmailAddress)
        return ViewerLines::chooseMailAddresses();
    const bool isNone = row() >= 0 && !AddressGrid::isMailAddress(information());
    return isNone ? ViewerLines::noMailAddress() : whyNoRow();
}

void GridPane::load(Information information, const DisplayRange &range)
{
    m_isLoaded = !viewer().isLongerThan(firstRows);
    m_rows->load(information, range, m_isLoaded ? AddressViewer::allRows : firstRows);
    if (m_isLoaded || !window()->isVisible())
        return;
    m_grid->viewport()->repaint();
    loadRest();
}

void GridPane::loadRest()
{
    if (std::exchange(m_isLoaded, true))
        return;
    const BusyCursor busy;
    const QScopedValueRollback arrival(m_arrival, Arrival::Rest);
    m_rows->load(viewer().information(), viewer().range());
}

void GridPane::reload()
{
    if (!m_isLoaded)
        return;
    const BusyCursor busy;
    const QScopedValueRollback arrival(m_arrival, Arrival::Reload);
    m_rows->reload();
}

void GridPane::search(const QString &text)
{
    loadRest();
    m_rows->search(text);
}

void GridPane::sortBy(int column)
{
    const QHeaderView *head = m_grid->horizontalHeader();
    const bool isOnceMore = column >= 0 && head->sortIndicatorSection() == column &&
                            head->sortIndicatorOrder() == Qt::AscendingOrder;
    m_grid->sortByColumn(column, isOnceMore ? Qt::DescendingOrder : Qt::AscendingOrder);
}

bool GridPane::remove(const AddressGrid::Identity &entry)
{
    const int row = current() == entry ? this->row() : m_rows->rowOf(entry);
    if (row < 0)
        return false;
    m_rows->removeEntry(row);
    refresh();
    if (m_rows->isEmpty()) // the focus would fall on the next button
        m_grid->setFocus();
    return true;
}

bool GridPane::bringBack(const AddressGrid::Identity &entry)
{
    if (!m_rows->bringBack(entry))
        return false;
    if (const int row = m_rows->rowOf(entry); row >= 0) // a search may leave it out
        m_grid->setCurrentIndex(m_rows->index(row, m_grid->currentIndex().column()));
    return true;
}

void GridPane::keepPlace()
{
    m_isPlacing = true;
    if (m_arrival == Arrival::Rest)
        return;
    m_kept = current();
    m_keptColumn = std::max(0, m_grid->currentIndex().column());
}

/// After other rows came into the grid: the same entry is current, or the first where it is gone. Where it is
/// gone from the files none is, so that no command turns to somebody else by itself.
void GridPane::followRows()
{
    const int kept = m_rows->rowOf(m_kept);
    const int column = m_rows->isEmpty() ? 0 : std::min(m_keptColumn, m_rows->columnCount() - 1);
    const bool isGone = m_arrival == Arrival::Reload && kept < 0 && !m_rows->isEmpty();
    m_grid->setCurrentIndex(isGone ? QModelIndex() : m_rows->index(std::max(0, kept), column));
    m_grid->scrollTo(m_grid->currentIndex());
    m_grid->clearSpans();
    if (m_rows->isEmpty() && m_rows->columnCount() > 1)
        m_grid->setSpan(0, 0, 1, m_rows->columnCount());
    m_isPlacing = false;
    m_rowsAndFoot->setVisible(!viewer().isBookEmpty());
    m_emptyBook->setVisible(viewer().isBookEmpty());
    placeNameColumn();
    refresh();
}

void GridPane::refresh()
{
    m_count->setText(m_rows->isSearching() ? ViewerMessages::matchCount(viewer().count())
                                           : ViewerMessages::nameCount(viewer().count()));
    refreshMode();
    emit rowsChanged();
}

/// The mode stands below the count where both have no room in a line. A long search text is cut all the same.
void GridPane::refreshMode()
{
    const QFontMetrics metrics = m_mode->fontMetrics();
    const auto widthOf = [&metrics](const QString &caption) {
        return metrics.size(Qt::TextShowMnemonic, caption).width();
    };
    const QString &searchText = viewer().searchText();
    const int frame = m_mode->sizeHint().width() - widthOf(m_mode->text());
    const int whole = m_grid->width() - frame -
                      widthOf(ViewerMessages::displayMode(searchText.isEmpty() ? QString() : u" "_s));
    const int beside = whole - m_count->sizeHint().width() - m_foot->spacing();
    const bool isBeside = beside >= std::min(metrics.horizontalAdvance(searchText), leastSearchTextShown);
    m_foot->setDirection(isBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    QString shown = metrics.elidedText(searchText, Qt::ElideRight, isBeside ? beside : whole);
    shown.replace(u'&', u"&&"_s);
    m_mode->setText(ViewerMessages::displayMode(shown));
    emit modeChanged(m_mode->text());
}

/// The information takes what the names leave, so that one width is all there is to remember.
void GridPane::rememberNameColumn()
{
    m_nameColumn = m_store.value(nameColumnKey()).toInt();
    placeNameColumn();
    connect(m_grid->horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int section, int, int width) {
                if (section != 0 || m_isPlacing || m_rows->columnCount() == 1)
                    return;
                m_nameColumn = std::clamp(width, leastNameColumn, mostNameColumn());
                m_store.setValue(nameColumnKey(), m_nameColumn);
                placeNameColumn();
            });
}

/// Wider, it would push the information out of the grid.
int GridPane::mostNameColumn() const
{
    return std::max(leastNameColumn, m_grid->viewport()->width() - leastInformationColumn);
}

void GridPane::placeNameColumn()
{
    if (m_rows->columnCount() == 1)
        return;
    const int suitable = std::min(int(nameColumnShare * m_grid->width()), widestNameColumn);
    const QScopedValueRollback placing(m_isPlacing, true);
    m_grid->horizontalHeader()->resizeSection(
        0, std::clamp(m_nameColumn > 0 ? m_nameColumn : suitable, leastNameColumn, mostNameColumn()));
}
