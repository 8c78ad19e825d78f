// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"

#include <QDate>

#include <optional>

class DateBox;
class QCheckBox;
class QLabel;
struct Program;

/// "Move to Another Date": where a line of a day goes, and whether a copy of it stays.
class LineDatePanel final : public TaskPanel
{
    Q_OBJECT
public:
    LineDatePanel(const Program &program, QWidget *window, QWidget *parent = nullptr);

    void start(const QString &line, QDate date);
    std::optional<QDate> date() const;
    bool isCopied() const;
    /// What is wrong, in quiet words beside the buttons.
    void refuse(const QString &why);

signals:
    void accepted();

private:
    QLabel *m_line;
    DateBox *m_date;
    QCheckBox *m_copy;
};
