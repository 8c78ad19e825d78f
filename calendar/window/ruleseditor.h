// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/window/rulestable.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;
class RuleForm;
struct Program;

/// A list of rules, and below it the chosen one, which changes as one types.
class RulesEditor final : public QWidget
{
    Q_OBJECT
public:
    enum class Signs { None, Offered };

    /// Its parts are named after it: "rules" has rulesList, rulesWords, rulesSign, rulesNew and rulesRemove.
    RulesEditor(const Program &program, const QString &name, Signs signs, QWidget *window,
                QWidget *parent = nullptr);

    /// `none` stands where there are none; a new one begins as `first`.
    void setRows(const QList<RuleRow> &rows, const QString &none, const RuleRow &first);
    const QList<RuleRow> &rows() const { return m_model->rows(); }
    /// With a reason, nothing can be changed.
    void setWhyLocked(const QString &reason);

    /// Chooses a row, with the focus in its words.
    void choose(int row);
    /// A year is being typed that the chosen rule has not taken; the focus goes there. False: there is none.
    bool goToOpenYear();
    /// There is a day without words; the focus goes to them. False: there is none.
    bool goToUnnamed();
    void addNew();
    void removeChosen();

    /// The last of the list and the boxes that Tab comes to; the buttons come behind it.
    QWidget *lastInTab() const;
    QPushButton *newButton() const { return m_new; }
    QPushButton *removeButton() const { return m_remove; }

signals:
    /// By the person.
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeForm(const Program &program, const QString &name, Signs signs, QWidget *window);
    void shareWidth();
    void showChosen();
    void take();
    int chosen() const;

    RulesTable *m_model;
    QTableView *m_view;
    QLabel *m_none;
    QWidget *m_form = nullptr;
    QLineEdit *m_text = nullptr;
    QComboBox *m_sign = nullptr;
    RuleForm *m_rule = nullptr;
    QPushButton *m_new;
    QPushButton *m_remove;
    RuleRow m_first;
    QString m_whyLocked;
    bool m_isShowing = false;
};
