#include "addressbook/viewer/viewerwindow.h"

#include "addressbook/model/viewerlines.h"
#include "addressbook/model/viewermessages.h"
#include "addressbook/model/viewerpages.h"
#include "addressbook/viewer/addressgrid.h"
#include "addressbook/viewer/gridpane.h"
#include "addressbook/viewer/labelpanel.h"
#include "addressbook/viewer/listoptionspanel.h"
#include "addressbook/viewer/pictureswindow.h"
#include "addressbook/viewer/viewerchoices.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"

#include <QKeyEvent>
#include <QLocale>
#include <QStackedWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int headGap = 32;

} // namespace

void ADDBKDISPLAY::chooseInformation()
{
    m_grid->load(m_choices->information(), m_grid->viewer().range());
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
    m_grid->load(m_choices->information(), range);
    sayRange();
}

void ADDBKDISPLAY::sayRange()
{
    const DisplayRange &range = m_grid->viewer().range();
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
    m_grid->search(m_choices->searchText());
    showGrid();
    if (m_grid->viewer().count() > 0)
        m_grid->setFocus();
}

/// From a search back to all names, and from there into the search box.
void ADDBKDISPLAY::switchDisplayMode()
{
    showGrid();
    if (!m_grid->viewer().searchText().isEmpty())
        m_choices->clearSearch();
    m_choices->focusSearch();
}

void ADDBKDISPLAY::refresh()
{
    const AddressViewer &viewer = m_grid->viewer();
    m_chip->setText(ViewerPages::choice(viewer.information()));
    refreshHead();
    m_listOptions->describe(viewer);
    if (m_pages->currentWidget() == m_labels)
        m_labels->follow(viewer);
    refreshCommands();
}

/// Beside a title that needs all the room the chip gives way: the choice is marked in the left pane as well.
void ADDBKDISPLAY::refreshHead()
{
    const int both = m_title->sizeHint().width() + m_chip->sizeHint().width();
    m_chip->setVisible(both + headGap <= m_grid->width());
}

void ADDBKDISPLAY::sortBy(int column)
{
    showGrid();
    m_grid->sortBy(column);
}

/// Which commands can be used now; the others say why they cannot.
void ADDBKDISPLAY::refreshCommands()
{
    const Information shown = m_grid->viewer().information();
    const int row = m_grid->row();
    const QString noRows = m_grid->viewer().count() == 0 ? ViewerLines::nothingShown() : QString();
    for (QAction *action : {m_copyAction, m_editCopyAction, m_exportAction, m_printAction, m_labelsAction})
        setUnavailable(action, noRows);

    const QString noRow = !noRows.isEmpty() ? noRows : row < 0 ? ViewerLines::chooseNameFirst() : QString();
    setUnavailable(m_removeButton, noRow);
    for (QAction *action : {m_removeAction, m_editRemoveAction})
        setUnavailable(action, noRow);

    const bool hasRecord = row >= 0 && m_grid->viewer().record(row) > 0;
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
        row >= 0 && isMail && AddressGrid::isMailAddress(m_grid->viewer().information(row));
    setUnavailable(m_mailButton, !isMail            ? ViewerLines::chooseMailAddresses()
                                 : !noRow.isEmpty() ? noRow
                                 : hasAddress       ? QString()
                                                    : ViewerLines::noMailAddress());
    m_buttonRow->rearrange();
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
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_grid->followFiles();
}
