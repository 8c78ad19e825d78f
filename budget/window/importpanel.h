// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/bankimport.h"
#include "shell/controls/taskpanel.h"

#include <memory>

class ImportModel;
class QComboBox;
class QTableView;
class SlicedWork;
class SpentYear;
struct Program;

/// The preview of a bank's file: what each of its lines becomes, the rules that say so, and the button that
/// takes them, in one step.
class ImportPanel final : public TaskPanel
{
    Q_OBJECT
public:
    ImportPanel(const Program &program, SpentYear &year, QWidget *parent = nullptr);

    /// Shows the file at `path`. False, with the reason said, when it cannot be read.
    bool open(const QString &path);

public slots:
    void leave() override;

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);
    /// Of the reading; `total` 0: it is over.
    void progressed(int done, int total);
    /// The amounts were taken, `first` before the others.
    void taken(const SpentAmount &first);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeForm();
    void makeView();
    void makeButtons();
    void shareWidth();
    void work();
    void finish();
    void refresh();
    void follow();
    void addRule();
    void takeLine();
    void openRules();
    void setRules(const QList<ImportRule> &rules);
    void take();
    bool mayLeave();
    void goHome();
    QString chosenItem() const;

    const Program &m_program;
    SpentYear &m_year;
    std::unique_ptr<BankImport> m_import;
    SlicedWork *m_work;
    ImportModel *m_model;
    QComboBox *m_filter;
    QLabel *m_hint;
    QLineEdit *m_text = nullptr;
    QComboBox *m_items = nullptr;
    QPushButton *m_addRule = nullptr;
    QPushButton *m_thisLine = nullptr;
    QTableView *m_view;
    QPushButton *m_rules = nullptr;
    QPushButton *m_take = nullptr;
};
