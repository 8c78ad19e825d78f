// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

/// Whose Ctrl+Z and Ctrl+Y are: of the box that has the focus, as long as it has typed text to take back
/// itself, else of the window. Left alone, a box keeps both keys even where it has nothing to do with them.
class UndoKeys final : public QObject
{
    Q_OBJECT
public:
    explicit UndoKeys(QWidget *window);

signals:
    /// Neither of them had anything to do with `key`.
    void refused(const QKeySequence &key);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow(QWidget *before, QWidget *now);

    QWidget *m_window;
};
