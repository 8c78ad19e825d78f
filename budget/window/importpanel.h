// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/spending.h"
#include "shell/controls/importpreview.h"

class BankImport;
class SpentYear;
struct Program;

/// The preview of a bank's file, with the rules that say what its texts belong to.
class ImportPanel final : public ImportPreview
{
    Q_OBJECT
public:
    ImportPanel(const Program &program, SpentYear &year, QWidget *parent = nullptr);

    /// Shows the file at `path`. False, with the reason said, when it cannot be read.
    bool open(const QString &path);

public slots:
    void leave() override;

signals:
    /// The amounts were taken, `first` before the others.
    void taken(const SpentAmount &first);

protected:
    QString hint() const override;
    QString whatBecomes() const override;
    QString whyReadOnly() const override;
    QString nothingToTake() const override;
    QString tooLong(const QString &name) const override;
    void shown() override;
    void take() override;
    void shareWidth() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeForm();
    void follow();
    void addRule();
    void takeLine();
    void openRules();
    void setRules(const QList<ImportRule> &rules);
    bool mayLeave();
    QString chosenItem() const;

    const Program &m_program;
    SpentYear &m_year;
    BankImport *m_import = nullptr;
    QLineEdit *m_text = nullptr;
    QComboBox *m_items = nullptr;
    QPushButton *m_addRule = nullptr;
    QPushButton *m_thisLine = nullptr;
    QPushButton *m_rules;
};
