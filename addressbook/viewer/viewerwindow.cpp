#include "addressbook/viewer/viewerwindow.h"

#include "addressbook/model/viewerlines.h"
#include "addressbook/model/viewermessages.h"
#include "addressbook/model/viewerpages.h"
#include "addressbook/viewer/addressgrid.h"
#include "addressbook/viewer/labelpanel.h"
#include "addressbook/viewer/listoptionspanel.h"
#include "addressbook/viewer/pictureswindow.h"
#include "addressbook/viewer/viewerchoices.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/busycursor.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/gridview.h"
#include "shell/pictures/picturecopies.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QScopedValueRollback>
#include <QStackedWidget>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A book with more lines than this shows its first rows at once and the others a moment later.
constexpr int firstRows = 200;
constexpr int leastSearchTextShown = 120;
constexpr int headGap = 32;

} // namespace

/// The rows of `range` with the chosen information; of a long book the first rows are painted before the rest
/// is read.
void ADDBKDISPLAY::load(const DisplayRange &range)
{
    m_isLoaded = !m_rows->viewer().isLongerThan(firstRows);
    showAll(range, m_isLoaded ? AddressViewer::allRows : firstRows);
    if (m_isLoaded || !isVisible())
        return;
    m_grid->viewport()->repaint();
    loadRest();
}

/// After the files were changed elsewhere.
void ADDBKDISPLAY::reload()
{
    const BusyCursor busy;
    const QScopedValueRollback<bool> reloading(m_isReloading, true);
    m_rows->reload();
}

void ADDBKDISPLAY::loadRest()
{
    if (std::exchange(m_isLoaded, true))
        return;
    const BusyCursor busy;
    const QScopedValueRollback<bool> rest(m_isLoadingRest, true);
    showAll(m_rows->viewer().range(), AddressViewer::allRows);
}

void ADDBKDISPLAY::showAll(const DisplayRange &range, int mostRows)
{
    m_rows->load(m_choices->information(), range, mostRows);
}

void ADDBKDISPLAY::keepPlace()
{
    m_isFollowing = true;
    if (m_isLoadingRest)
        return;
    m_kept = m_rows->identity(currentRow());
    m_keptColumn = std::max(0, m_grid->currentIndex().column());
}

/// After other rows came into the grid: the same entry is current, or the first where it is gone. Where it is
/// gone from the files none is, so that no command turns to somebody else by itself.
void ADDBKDISPLAY::followRows()
{
    const int kept = m_rows->rowOf(m_kept);
    const int column = m_rows->isEmpty() ? 0 : std::min(m_keptColumn, m_rows->columnCount() - 1);
    const bool isGone = m_isReloading && kept < 0 && !m_rows->isEmpty();
    m_grid->setCurrentIndex(isGone ? QModelIndex() : m_rows->index(std::max(0, kept), column));
    m_grid->scrollTo(m_grid->currentIndex());
    m_grid->clearSpans();
    if (m_rows->isEmpty() && m_rows->columnCount() > 1)
        m_grid->setSpan(0, 0, 1, m_rows->columnCount());
    m_isFollowing = false;
    placeNameColumn();
    refresh();
}

void ADDBKDISPLAY::chooseInformation()
{
    load(m_rows->viewer().range());
    sayRange();
}

void ADDBKDISPLAY::updateDisplay()
{
    const DisplayRange::Kind kind = m_choices->rangeKind();
    const DisplayRange range{kind, m_choices->month(kind)};
    if (kind != DisplayRange::All && range.month == 0) {
        ask(kind == DisplayRange::BirthMonth ? ViewerMessages::birthdayMonthMissing()
                                             : ViewerMessages::anniversaryMonthMissing());
        m_choices->focusMonth(kind);
        return;
    }
    load(range);
    sayRange();
}

void ADDBKDISPLAY::sayRange()
{
    const DisplayRange &range = m_rows->viewer().range();
    const bool isBirthday = range.kind == DisplayRange::BirthMonth;
    activity().say(range.kind == DisplayRange::All
                       ? QString()
                       : ViewerLines::rangeShown(isBirthday, QLocale::c().standaloneMonthName(range.month)));
}

void ADDBKDISPLAY::search()
{
    if (m_choices->searchText().trimmed().isEmpty()) {
        ask(ViewerMessages::searchTextMissing());
        m_choices->focusSearch();
        return;
    }
    narrow(m_choices->searchText());
    showGrid();
    if (!m_rows->isEmpty())
        m_grid->setFocus();
}

void ADDBKDISPLAY::narrow(const QString &text)
{
    loadRest();
    m_rows->search(text);
}

/// From a search back to all names, and from there into the search box.
void ADDBKDISPLAY::switchDisplayMode()
{
    showGrid();
    if (m_rows->isSearching())
        m_choices->clearSearch();
    m_choices->focusSearch();
}

void ADDBKDISPLAY::refresh()
{
    const AddressViewer &viewer = m_rows->viewer();
    m_count->setText(m_rows->isSearching() ? ViewerMessages::matchCount(viewer.count())
                                           : ViewerMessages::nameCount(viewer.count()));
    refreshMode();
    m_chip->setText(ViewerPages::choice(viewer.information()));
    refreshHead();
    m_listOptions->describe(viewer);
    if (m_pages->currentWidget() == m_labels)
        m_labels->follow(viewer);
    refreshCommands();
}

/// The mode stands below the count where both have no room in a line. A long search text is cut all the same.
void ADDBKDISPLAY::refreshMode()
{
    const QFontMetrics metrics = m_modeButton->fontMetrics();
    const auto widthOf = [&metrics](const QString &caption) {
        return metrics.size(Qt::TextShowMnemonic, caption).width();
    };
    const QString searchText = m_rows->viewer().searchText();
    const int frame = m_modeButton->sizeHint().width() - widthOf(m_modeButton->text());
    const int whole = m_grid->width() - frame -
                      widthOf(ViewerMessages::displayMode(searchText.isEmpty() ? QString() : u" "_s));
    const int beside = whole - m_count->sizeHint().width() - m_foot->spacing();
    const bool isBeside = beside >= std::min(metrics.horizontalAdvance(searchText), leastSearchTextShown);
    m_foot->setDirection(isBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    QString shown = metrics.elidedText(searchText, Qt::ElideRight, isBeside ? beside : whole);
    shown.replace(u'&', u"&&"_s);
    const QString mode = ViewerMessages::displayMode(shown);
    m_modeButton->setText(mode);
    m_modeAction->setText(mode);
}

/// Beside a title that needs all the room the chip gives way: the choice is marked in the left pane as well.
void ADDBKDISPLAY::refreshHead()
{
    const int both = m_title->sizeHint().width() + m_chip->sizeHint().width();
    m_chip->setVisible(both + headGap <= m_grid->width());
}

/// By a heading's column; once more the other way round. Below 0 the order of the records.
void ADDBKDISPLAY::sortBy(int column)
{
    const QHeaderView *head = m_grid->horizontalHeader();
    const bool isOnceMore = column >= 0 && head->sortIndicatorSection() == column &&
                            head->sortIndicatorOrder() == Qt::AscendingOrder;
    showGrid();
    m_grid->sortByColumn(column, isOnceMore ? Qt::DescendingOrder : Qt::AscendingOrder);
}

/// Which commands can be used now; the others say why they cannot.
void ADDBKDISPLAY::refreshCommands()
{
    const Information shown = m_rows->viewer().information();
    const int row = currentRow();
    const QString noRows = m_rows->isEmpty() ? ViewerLines::nothingShown() : QString();
    for (QAction *action : {m_copyAction, m_editCopyAction, m_exportAction, m_printAction, m_labelsAction})
        setUnavailable(action, noRows);

    const QString noRow = !noRows.isEmpty() ? noRows : row < 0 ? ViewerLines::chooseNameFirst() : QString();
    setUnavailable(m_removeButton, noRow);
    for (QAction *action : {m_removeAction, m_editRemoveAction})
        setUnavailable(action, noRow);

    const bool hasRecord = row >= 0 && m_rows->viewer().record(row) > 0;
    const QString noEntry = !noRow.isEmpty() || hasRecord ? noRow : ViewerLines::noEntry();
    setUnavailable(m_openAction, noEntry);
    setUnavailable(m_openButton, noEntry);

    setUnavailable(m_sortInformationAction,
                   shown == Information::Pictures ? ViewerLines::nothingToSortBy() : QString());

    const bool isTelephone = shown == Information::HomePhone || shown == Information::MobilePhone ||
                             shown == Information::FaxNumber;
    setUnavailable(m_dialButton, isTelephone ? noRow : ViewerLines::chooseTelephones());
    const bool isMail = shown == Information::EmailAddress;
    const bool hasAddress =
        row >= 0 && isMail && AddressGrid::isMailAddress(m_rows->viewer().information(row));
    setUnavailable(m_mailButton, !isMail            ? ViewerLines::chooseMailAddresses()
                                 : !noRow.isEmpty() ? noRow
                                 : hasAddress       ? QString()
                                                    : ViewerLines::noMailAddress());
    m_buttonRow->rearrange();
}

int ADDBKDISPLAY::currentRow() const
{
    return m_rows->isEmpty() ? -1 : m_grid->currentIndex().row();
}

/// For the commands that act on the grid: whatever stands over it goes.
void ADDBKDISPLAY::showGrid()
{
    closePreview();
    leavePanel();
}

void ADDBKDISPLAY::leavePanel()
{
    if (m_pages->currentWidget() == m_gridPage)
        return;
    m_pages->setCurrentWidget(m_gridPage);
    m_grid->setFocus();
}

void ADDBKDISPLAY::keyPressEvent(QKeyEvent *event)
{
    const bool isOverGrid = m_pages->currentWidget() != m_gridPage;
    if (event->key() == Qt::Key_Escape && isOverGrid && !isPreviewShown())
        leavePanel();
    else
        FunctionWindow::keyPressEvent(event);
}

void ADDBKDISPLAY::resizeEvent(QResizeEvent *event)
{
    FunctionWindow::resizeEvent(event);
    placeSplitter();
}

/// Who comes back from the address book sees what was changed there.
void ADDBKDISPLAY::changeEvent(QEvent *event)
{
    FunctionWindow::changeEvent(event);
    const bool comesBack = event->type() == QEvent::ActivationChange && isActiveWindow();
    if (comesBack && m_isLoaded && m_rows->viewer().isOutdated())
        reload();
}
