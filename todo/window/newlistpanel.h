// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"
#include "todo/model/todosheet.h"

#include <QDate>

class DateBox;
class FieldBox;
class QComboBox;
class QLabel;
class QPushButton;
struct Program;

/// "New List": its name, and what it begins with: nothing, or what a template has. "Save List as a Template"
/// asks the other way round for a name and a day.
class NewListPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit NewListPanel(const Program &program, QWidget *window, QWidget *parent = nullptr);

    /// What the list begins with.
    struct Beginning {
        enum Kind { Plain, Shopping, OwnTemplate, BuiltIn, KeptList };

        Kind kind = Plain;
        int place = 0;        ///< the id of one's own template or list, or the place of a built-in one
        bool hasDays = false; ///< dates that count from a date
        QString name;
    };

    /// Begins anew, with the templates of `sheet` to choose from; `isFromTemplate`: one of them is chosen.
    void start(const ToDoSheet &sheet, bool isFromTemplate);
    /// Begins anew, to make a template called `name` of a list.
    void startKeeping(const ToDoSheet &sheet, int list, const QString &name);

    QString name() const;
    Beginning beginning() const;
    /// The date from which a template's dates count; nothing where none can be read.
    std::optional<QDate> day() const;
    /// What is wrong, in quiet words beside the buttons.
    void refuse(const QString &why);

signals:
    void accepted();

private:
    QWidget *makeContent();
    void offer(std::size_t chosen);
    void followBeginning();

    const Program &m_program;
    FieldBox *m_name;
    QComboBox *m_beginnings;
    QWidget *m_beginningRow;
    QWidget *m_dayRow;
    DateBox *m_day;
    QLabel *m_what;
    QPushButton *m_make;
    std::vector<Beginning> m_all;
    bool m_isNamed = false; ///< by the user, not after the template
};
