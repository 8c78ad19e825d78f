// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/commands.h"

#include <QObject>

class DuePanel;
class ImportPanel;
class LinkButton;
class QComboBox;
class QMenu;
class SheetGrid;
class SheetModel;
class SpentPanel;
class SpentYear;
class WorkViews;
struct Message;
struct Place;
struct Program;
struct SpentAmount;

/// The layer of what was spent: the switch beside the year, what is typed into its cells, and the panels
/// over the sheet.
class SpentDesk final : public QObject
{
    Q_OBJECT
public:
    /// What it works on.
    struct Desk {
        SheetModel &model;
        SheetGrid &grid;
        SpentYear &year;
        WorkViews &views;
        Commands &commands;
    };

    SpentDesk(Program &program, Desk desk, QWidget *window);

    /// "Planned" and "Spent", and what was spent on items that have no row, as a link: for the title line.
    QWidget *makeSwitch(QWidget *parent);
    /// Puts the commands into the view menu.
    void addCommands(QMenu *view);
    /// The command that lists the amounts of the current cell.
    QAction *amounts() const { return m_amountsCommand; }
    /// Puts the command that reads a bank's file into `menu`.
    void addImport(QMenu *menu);
    /// Ends what takes its time.
    void stop();
    /// The cell or the amount of `place`; the year is open.
    void show(const Place &place);

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);
    void noticed(const Message &message);
    /// Only the number at the start of what was typed was added, as `amount`.
    void partlyRead(const QString &typed, const QString &amount);
    /// Of what takes its time; `total` 0: it is over.
    void progressed(int done, int total);

private:
    void addTyped(int row, int month, const QString &typed);
    void openCell();
    void openAmounts(int row, int month);
    void openDue();
    void openFile();
    void showTaken(const SpentAmount &first);
    template <typename Panel>
    Panel *made(Panel *panel);
    void setLayer(bool isSpent);
    void refresh();
    QString whyNoSheet() const;

    Program &m_program;
    Desk m_desk;
    QWidget *m_window;
    // Panels are made when they are first opened.
    SpentPanel *m_amounts = nullptr;
    DuePanel *m_due = nullptr;
    ImportPanel *m_import = nullptr;
    QComboBox *m_layers = nullptr;
    LinkButton *m_noRow = nullptr;
    QAction *m_planned = nullptr;
    QAction *m_spent = nullptr;
    QAction *m_amountsCommand = nullptr;
};
