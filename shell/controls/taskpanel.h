// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/controls.h"

#include <QWidget>

class ButtonRow;
class QVBoxLayout;
class TitleLine;

/// A panel that takes the place of the work for one task: title, content, a line, and its buttons in the
/// foot. Esc leaves it.
class TaskPanel : public QWidget
{
    Q_OBJECT
public:
    enum class Side { Left, Right };

    /// Its parts are named after it: "picturePanel" has pictureTitle, pictureScroll and pictureButtons. Tab
    /// walks through them as they are added: the content first, then the buttons from left to right.
    TaskPanel(const QString &name, const QString &title, QWidget *parent = nullptr);

    TitleLine &titleLine() const { return *m_title; }
    void setTitle(const QString &title);

    /// Content that scrolls where it does not fit, between the title and the foot.
    void setContent(QWidget *content);
    /// Content that fills the panel as it is, since parts of it scroll by themselves.
    void setWork(QWidget *work);

    QPushButton *addButton(const QString &name, const QString &caption, ButtonKind kind = ButtonKind::Plain,
                           Side side = Side::Right);
    /// A button that was made elsewhere, for a command say.
    void addButton(QPushButton *button, Side side = Side::Right);
    /// The button that does what Esc does.
    QPushButton *setLeaveButton(const QString &name, const QString &caption,
                                ButtonKind kind = ButtonKind::Plain);
    /// Quiet words in the foot, at the left.
    void setWords(const QString &words);
    ButtonRow &buttonRow() const { return *m_foot; }

public slots:
    /// Esc or the leave button: a panel that may not be left just now refuses by doing nothing.
    virtual void leave();

signals:
    void left();

protected:
    /// Puts the buttons behind the content for Tab; to be called when the content has changed.
    void orderTabs();

    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    /// The window has become low, or is no longer: the work has what is spared around it.
    virtual void setLow(bool isLow);

private:
    TitleLine *m_title;
    QVBoxLayout *m_rows;
    ButtonRow *m_foot;
};
