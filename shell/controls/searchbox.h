// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

/// The box of a search, with its sign before the words. Esc clears it while it is filled; Down leads to what
/// it searches. Back from there its text is selected, to be typed over.
class SearchBox final : public QLineEdit
{
    Q_OBJECT
public:
    /// `words` stand in the empty box and are its accessible name.
    SearchBox(const QString &name, const QString &words, const QString &tip, QWidget *parent);

    /// Where Down leads; nothing at first.
    void setTarget(QWidget *target) { m_target = target; }
    QWidget *target() const { return m_target; }
    /// Puts the cursor into it, to type something else.
    void startAgain();

signals:
    /// Down was pressed; the target, if there is one, has the focus now.
    void leftDown();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *m_target = nullptr;
};
