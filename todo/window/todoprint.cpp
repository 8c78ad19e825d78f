// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/todoprint.h"

#include "shell/core/framelines.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"
#include "storage/saving.h"
#include "todo/model/messages.h"
#include "todo/model/todoexport.h"
#include "todo/window/itemsmodel.h"
#include "todo/window/itemsview.h"
#include "todo/window/openlists.h"
#include "todo/window/printpanel.h"
#include "todo/window/windowlines.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QMenu>

using namespace Qt::Literals::StringLiterals;

ToDoPrint::ToDoPrint(const ToDoDesk &desk, ItemsView &view, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_view(view)
{}

void ToDoPrint::addCommands(QMenu *options)
{
    m_desk.commands.add(
        options, u"mOCopy"_s, u"Cop&y"_s, [this] { copy(); },
        [this] { return m_view.model().rowCount() > 0 ? QString() : ToDoWindowLines::nothingShown(); });
    QAction *print = m_desk.commands.add(
        options, u"mOPrt"_s, u"&Print"_s, [this] { openPanel(); }, {}, CommonKeys::print);
    m_desk.commands.tool(print, "print"_L1, u"Print"_s);
}

void ToDoPrint::addExportCommand(QMenu *utilities)
{
    m_desk.commands.writing(m_desk.commands.add(
        utilities, u"mUExcel"_s, u"&Export to Excel/Spreadsheet"_s, [this] { exportList(); },
        [this] { return m_view.shown().kind == Shown::List ? QString() : ToDoWindowLines::noListChosen(); }));
}

void ToDoPrint::openPanel()
{
    m_view.finishEdit();
    if (!m_panel) {
        m_panel = new ToDoPrintPanel(m_desk.program, &m_desk.window);
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &ToDoPrintPanel::accepted, this, &ToDoPrint::print);
        connect(m_panel, &TaskPanel::left, &m_desk.views, &WorkViews::goHome);
    }
    m_desk.window.closePreview();
    m_panel->start(m_desk.lists.sheet(), m_view.shown());
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}

void ToDoPrint::print()
{
    const auto page = [sheet = m_desk.lists.sheet(),
                       options = m_panel->options()](const PageContext &context) {
        return ToDoPages::printout(sheet, options, context);
    };
    m_desk.window.showPreview(page, u"To Do List"_s);
}

/// The rows as they are shown, under their headings.
void ToDoPrint::copy()
{
    m_view.finishEdit();
    const ItemsModel &model = m_view.model();
    QGuiApplication::clipboard()->setText(
        ToDoExport::text(m_desk.lists.sheet(), model.itemsBetween(0, model.rowCount() - 1)));
    m_desk.program.dialogs.ask(&m_desk.window, ToDoMessages::copied());
}

void ToDoPrint::exportList()
{
    m_view.finishEdit();
    const DataFolder &folder = m_desk.program.folder;
    const ToDoList *list = m_desk.lists.sheet().list(m_view.shown().list);
    if (!list)
        return;
    const QString name = ToDoExport::fileName(list->name);
    const QString place = QDir::toNativeSeparators(folder.path());
    if (m_desk.program.dialogs.ask(&m_desk.window, ToDoMessages::exportNotice(place, name)) != Answer::Ok)
        return;
    const bool isSaved =
        Saving::replaceFile(folder, name, ToDoExport::file(m_desk.lists.sheet(), m_view.shown().list));
    emit said(isSaved ? FrameLines::savedAs(QDir::toNativeSeparators(folder.filePath(name)))
                      : ToDoWindowLines::notExported(name));
}
