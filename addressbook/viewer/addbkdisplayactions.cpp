// Removing, dialling, copying, exporting and printing: the commands of the viewer.

#include "addressbook/entry/entrywindow.h"
#include "addressbook/model/messages.h"
#include "addressbook/model/viewerlines.h"
#include "addressbook/model/viewermessages.h"
#include "addressbook/model/viewerpages.h"
#include "addressbook/viewer/gridpane.h"
#include "addressbook/viewer/labelpanel.h"
#include "addressbook/viewer/listoptionspanel.h"
#include "addressbook/viewer/pictureswindow.h"
#include "addressbook/viewer/viewerwindow.h"
#include "shell/access/gate.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/core/area.h"
#include "shell/core/framelines.h"
#include "shell/core/helpcontexts.h"
#include "shell/pictures/picturecopies.h"
#include "storage/saving.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QStackedWidget>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

void ADDBKDISPLAY::removeRow()
{
    showGrid();
    const AddressGrid::Identity asked = m_grid->current();
    if (m_grid->row() < 0 || ask(ViewerMessages::removeRow()) != Answer::Yes)
        return;
    // Coming back from the question may have read the rows anew.
    if (!m_grid->remove(asked))
        return;
    activity().say(ViewerLines::removed(asked.name));
}

void ADDBKDISPLAY::dial()
{
    const int row = m_grid->row();
    const QString number = row < 0 ? QString() : m_grid->viewer().information(row).trimmed();
    if (!m_dialler->call(number))
        activity().say(FrameLines::settingNotSaved());
}

void ADDBKDISPLAY::writeMail()
{
    if (m_grid->row() >= 0)
        openMail(m_grid->viewer().information(m_grid->row()));
}

void ADDBKDISPLAY::openMail(const QString &address)
{
    QUrl url;
    url.setScheme(u"mailto"_s);
    url.setPath(address.trimmed());
    activity().say(m_surroundings.openAddress(url) ? QString() : ViewerLines::noMailProgram());
}

void ADDBKDISPLAY::openEntry()
{
    showGrid();
    const int row = m_grid->row();
    const int record = row < 0 ? 0 : m_grid->viewer().record(row);
    if (record == 0)
        return;
    const QList<QWidget *> open = program().functions.openWindows();
    const bool isOpen =
        std::ranges::any_of(open, [](QWidget *window) { return qobject_cast<ADDBKVIEW *>(window); });
    if (!isOpen && !program().gate.mayOpen(program(), Area::AddressBook, this))
        return;
    auto *book = qobject_cast<ADDBKVIEW *>(program().functions.open(Function::AddressBook, program()));
    if (book && !book->showRecord(record)) {
        raise(); // or nobody reads it
        activateWindow();
        activity().say(ViewerLines::notInList());
    }
}

void ADDBKDISPLAY::copyRows()
{
    m_grid->loadRest();
    QApplication::clipboard()->setText(
        ViewerPages::clipboardText(m_grid->viewer(), program().state.dateStyle));
    ask(AddressMessages::dataCopied());
}

void ADDBKDISPLAY::exportRows()
{
    m_grid->loadRest();
    const QString name = ViewerPages::exportName(m_title->text());
    const QString folder = QDir::toNativeSeparators(program().folder.path());
    if (ask(ViewerMessages::exportNotice(folder, name)) != Answer::Ok)
        return;
    const QByteArray content = ViewerPages::exportText(m_grid->viewer(), program().state.dateStyle);
    const bool isSaved = Saving::replaceFile(program().folder, name, content);
    const QString path = QDir::toNativeSeparators(program().folder.filePath(name));
    activity().say(isSaved ? FrameLines::savedAs(path) : ViewerLines::notExported(name));
}

Page ADDBKDISPLAY::page(const PageSetup &) const
{
    return ViewerPages::list(m_grid->viewer(), m_listOptions->options(), program().state.dateStyle,
                             clock().today());
}

void ADDBKDISPLAY::showPrintOptions()
{
    m_grid->loadRest();
    closePreview();
    if (m_grid->viewer().information() == Information::Pictures) {
        printPictures();
        return;
    }
    m_pages->setCurrentWidget(m_listOptions);
    m_listOptions->focusFirst();
}

void ADDBKDISPLAY::printList()
{
    showPreview([this](const PageSetup &setup) { return page(setup); }, u"Family and Friends List"_s);
}

void ADDBKDISPLAY::printPictures()
{
    const std::vector<NamedPicture> pictures = ViewerPages::picturesOf(m_grid->viewer());
    if (pictures.empty()) {
        activity().say(ViewerLines::noPictures());
        return;
    }
    m_copies->make(pictures);
}

void ADDBKDISPLAY::showPictureList()
{
    activity().showProgress(0, 0);
    const auto list = [this](const PageSetup &setup) {
        return ViewerPages::pictureList(m_copies->pictures(), setup, program().state.dateStyle,
                                        clock().today());
    };
    showPreview(list, u"Family and Friends Pictures"_s);
}

void ADDBKDISPLAY::stop()
{
    if (!m_copies->isBusy())
        return;
    m_copies->stop();
    activity().showProgress(0, 0);
    activity().say(ViewerLines::stopped());
}

void ADDBKDISPLAY::showPictures()
{
    if (!m_pictures)
        m_pictures = new ADDBKDISPLAY2(program());
    m_pictures->show();
    m_pictures->raise();
    m_pictures->activateWindow();
}

void ADDBKDISPLAY::showLabels()
{
    m_grid->loadRest();
    closePreview();
    m_pages->setCurrentWidget(m_labels);
    m_labels->start(m_grid->viewer());
}

void ADDBKDISPLAY::openBackup()
{
    program().functions.open(Function::Backup, program());
}

void ADDBKDISPLAY::showHelp()
{
    emit program().changes.helpRequested(HelpContext::AddressViewer);
}

void ADDBKDISPLAY::choosePanelColor()
{
    colors().choosePanelColor();
}
