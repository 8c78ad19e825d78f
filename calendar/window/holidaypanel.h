// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/holidaysets.h"
#include "shell/controls/taskpanel.h"

class QComboBox;
class QLineEdit;
class RulesEditor;
struct Program;

/// "Holidays": the sets that calendars choose from, which the household can change, and its own ones.
class HolidayPanel final : public TaskPanel
{
    Q_OBJECT
public:
    /// `window` is what the calendar of a date floats over.
    HolidayPanel(const Program &program, QWidget *window, QWidget *parent = nullptr);

    /// Begins with the holidays as they are, at the set `name` where there is one of that name.
    void start(const QString &name = {});
    /// Whether what was changed would be lost without the question that leaving asks.
    bool isModified() const;

    /// Asks before changes are dropped.
    void leave() override;

signals:
    /// The household's file was written: calendars have other holidays when they are filled again.
    void changed();
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    QWidget *makeSets();
    void offerSets(const QString &name);
    int ownPlace() const;
    HolidayFile wanted() const;
    void showSet();
    void take();
    void rename();
    void addSet();
    void dropSet();
    void save();
    QString whyNotNamed();

    const Program &m_program;
    HolidaySets m_sets;
    HolidayFile m_own; ///< as it was changed
    QComboBox *m_choice = nullptr;
    QWidget *m_nameRow = nullptr;
    QLineEdit *m_name = nullptr;
    QPushButton *m_newSet = nullptr;
    RulesEditor *m_editor;
    QPushButton *m_drop = nullptr;
    QPushButton *m_keep = nullptr;
    HolidaySet m_base; ///< the set that is shown, as it was when it came to be shown
    bool m_isWarned = false;
};
