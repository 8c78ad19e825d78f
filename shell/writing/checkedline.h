// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/checkedbox.h"

class QLineEdit;

/// Spelling in a box of one line.
class CheckedLine final : public CheckedBox
{
    Q_OBJECT
public:
    CheckedLine(Writing &writing, QLineEdit *box);

    QStringList marked() const override;
    /// What stands in the box is about to be taken out of it, as with Enter.
    void finish();

protected:
    Line lineAt(qsizetype place) const override;
    qsizetype cursor() const override;
    qsizetype placeUnder(QPoint point) const override;
    bool isLocked() const override;
    bool replace(const WordPlace &word, const QString &by) override;
    void takeBack(qsizetype place) override;
    QMenu *usualMenu() const override;
    void mark() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void edited();
    void drawMarks() const;

    QLineEdit *m_line;
    std::vector<WordPlace> m_wrong;
    qsizetype m_length = 0;  ///< of the text before it was edited
    bool m_isEdited = false; ///< by typing, as opposed to another text being set
    bool m_isReplacing = false;
};
