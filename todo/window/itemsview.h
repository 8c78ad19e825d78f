// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/titledview.h"
#include "todo/model/shown.h"
#include "todo/model/todoactions.h"
#include "todo/window/tododesk.h"

#include <functional>
#include <vector>

class ElidedLabel;
class EntryLine;
class ItemGrid;
class ItemsModel;
class NoteBox;
class QLabel;
class QPushButton;

/// The work panel: what is shown by its title, the line for something new, and the rows.
class ItemsView final : public TitledView
{
    Q_OBJECT
public:
    explicit ItemsView(const ToDoDesk &desk);

    ItemGrid &grid() const { return *m_grid; }
    ItemsModel &model() const { return *m_model; }
    EntryLine &entry() const { return *m_entry; }
    NoteBox &note() const { return *m_note; }
    const Shown &shown() const;
    /// Puts the button of "Add" beside the line.
    void setAddButton(QPushButton *button);

    /// A button in the foot that is shown in Today, while something is overdue.
    void setOverdueButton(QPushButton *button) { m_overdue = button; }

    /// Shows another view, with the focus where one types or, `isQuiet`, where it is.
    void show(const Shown &shown);
    /// The lists have changed.
    void followLists();
    /// What is still being typed in a cell or a note goes into the lists.
    void finishEdit();
    /// The list into which something new goes; 0 where there is none.
    int listForNew() const;
    /// Whether the list that is shown is a template: its items have days in place of dates, and no ticks.
    bool isTemplate() const;
    /// Whether something new can be typed in this view.
    bool takesNew() const;
    /// The chosen items; nothing that is only shown.
    std::vector<int> chosen() const;
    void choose(const std::vector<int> &ids);
    void typeNew();
    /// It is another day than before.
    void beginDay();

    /// Makes the lists what `result` says, and chooses what it made. False where nothing has changed.
    bool make(const ToDoActions::Result &result);

signals:
    void said(const QString &line);
    /// The same of something that can be taken back.
    void done(const QString &line);
    void listWanted(int list);
    /// Other rows are chosen, or another view is shown.
    void moved();

protected:
    void refresh() override;

private:
    QWidget *makeEntry();
    QWidget *makeEmpty();
    void connectParts();
    void keepChoice(const std::function<void()> &change);
    void showTitle();
    void showEmptiness();
    void showHint();
    void offer(const QString &typed);
    void placeNote();

    ToDoDesk m_desk;
    ItemsModel *m_model;
    ItemGrid *m_grid;
    EntryLine *m_entry;
    QWidget *m_entryRow;
    QLabel *m_hint;
    QWidget *m_rows;
    QLabel *m_emptySentence;
    QLabel *m_emptyLine;
    QWidget *m_empty;
    QLabel *m_words;
    NoteBox *m_note;
    QPushButton *m_overdue = nullptr;
};
