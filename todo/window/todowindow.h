// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/functionwindow.h"
#include "todo/model/shown.h"
#include "todo/window/tododesk.h"

class ItemCommands;
class ItemsView;
class ListCommands;
class ListsPane;
class OpenLists;
class OrderCommands;
class ToDoPrint;
class ToDoSpelling;
class WorkViews;
class Writing;
struct Place;

/// The To Do list: the lists and the views over them at the left, and what is to be done of the chosen one.
class ToDo1 final : public FunctionWindow
{
    Q_OBJECT
public:
    explicit ToDo1(Program &program, QWidget *parent = nullptr);

    /// Only what the disk has refused is not saved.
    bool isModified() const override;

    /// Shows the item whose id is the record of `place`, in its list.
    void showPlace(const Place &place);

protected:
    [[nodiscard]] bool save() override;
    void drop() override;
    Answer askToLeave() override;
    void filesChanged() override;

private:
    ToDoDesk desk();
    QWidget *makeWorkPanel();
    void makeCommands();
    void makeViewCommands(QMenu *view);
    void addOptions(QMenu *options);
    void makeButtons();
    void connectParts();
    void connectLists();
    void bring(const Shown &shown);
    void followLists();
    void load();
    void saveByCommand();

    OpenLists *m_lists;
    Writing *m_writing;
    ListsPane *m_pane;
    WorkViews *m_stack; ///< the rows, and what stands over them
    ItemsView *m_view;
    ItemCommands *m_items;
    OrderCommands *m_order;
    ToDoSpelling *m_spelling;
    ToDoPrint *m_print;
    ListCommands *m_listCommands;
    std::vector<std::pair<Shown::Kind, QAction *>> m_viewActions;
};
