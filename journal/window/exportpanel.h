// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalexport.h"
#include "shell/controls/taskpanel.h"

class ChoiceGrid;
class DaySpan;
class QComboBox;
struct Program;

/// "Export": which entries go into a file, and of what kind that is.
class ExportPanel final : public TaskPanel
{
    Q_OBJECT
public:
    enum Form { Text, Html, Pdf };

    ExportPanel(const Program &program, QWidget *window, QWidget *parent = nullptr);

    void start(QDate shown, const QStringList &tags);
    JournalExport::Selection selection() const;
    Form form() const;

signals:
    void accepted();

private:
    void accept();

    enum Which { All, Range, Tag };

    ChoiceGrid *m_which;
    ChoiceGrid *m_form;
    DaySpan *m_days;
    QComboBox *m_tags;
};
