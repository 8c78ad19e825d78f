// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keepersummary.h"
#include "shell/controls/titledview.h"

class EntryForm;
class QLabel;
struct Program;

/// The entry at the right of the list: its title and kind, its boxes, and its buttons in the foot.
class EntryView final : public TitledView
{
    Q_OBJECT
public:
    EntryView(const Program &program, QWidget *window, QWidget *parent = nullptr);

    EntryForm &form() const { return *m_form; }

    /// Shows `entry`; `chip` says what is special about it, and `words` when it was changed. With `typed`,
    /// that stands in the boxes as not saved yet.
    void show(const KeeperEntry &entry, const QString &chip, const QString &words,
              const KeeperEntry *typed = nullptr);
    void setLocked(bool isLocked);
    /// What stands in the boxes is in the file now.
    void setSaved(const KeeperEntry &entry, const QString &words);

signals:
    void edited();

private:
    void refresh() override {}
    void follow();

    EntryForm *m_form;
    QLabel *m_words;
};
