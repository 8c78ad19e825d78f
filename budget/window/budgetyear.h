// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetfiles.h"
#include "shell/core/undostep.h"

#include <QObject>

class SheetModel;
class SpentYear;
struct Message;
struct Program;

/// The year whose budget is open: its file is read into the sheet, and the sheet written into it
/// together with what was spent.
class BudgetYear final : public QObject
{
    Q_OBJECT
public:
    /// `window` is what questions are asked over.
    BudgetYear(Program &program, SheetModel &model, SpentYear &spent, QWidget *window);

    int year() const { return m_year; }
    QString fileName() const { return BudgetFiles::fileName(m_year); }
    const BudgetFiles &files() const { return m_files; }
    QStringList fileNames() const;
    bool hasFile() const { return m_files.has(m_year); }

    /// Shows what the file of `year` holds; what was typed is dropped.
    void load(int year);
    void reload() { load(m_year); }
    bool isModified() const;
    /// Writes the sheet. False when the disk refuses, or when the user would rather keep what the file has.
    [[nodiscard]] bool save();
    /// Asks, then copies the file, where there is one, over that of the year after. Nothing that was typed is
    /// copied.
    void copyToNext();
    /// The file was changed by somebody else: shows what it holds, unless that would take what was typed.
    void takeChangedFile();

signals:
    /// A file was read, and shown.
    void loaded(int year);
    /// The same, where it is another year than before.
    void opened(int year);
    /// The file was read or written by this window.
    void fileTouched();
    /// The year after has what this one has.
    void copied(const UndoStep &step);
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    void showIfOpen(int year);
    bool write();

    Program &m_program;
    BudgetFiles m_files;
    SheetModel &m_model;
    SpentYear &m_spent;
    QWidget *m_window;
    int m_year = 0;
    int m_surplus = 0; ///< values of the file that the next save would drop
};
