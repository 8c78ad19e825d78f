// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>

class QLabel;
class QPushButton;

/// What lies over a window while nobody may see its content: a sign, a word, and the button that asks for the
/// password.
class WindowCover final : public QWidget
{
    Q_OBJECT
public:
    /// Hides what `window` shows, and takes its keys.
    WindowCover(QWidget &window, std::function<void()> unlock);

    /// Shows it again and goes; gives what had the focus, or was given it meanwhile.
    QWidget *lift();

    /// The cover over `window`, if there is one.
    static WindowCover *over(const QWidget &window);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOut();
    void hideContent();
    void keepTitle();
    void keepFocus();
    bool isBehind(const QObject *part) const;
    bool takeKey(QEvent &event);

    QWidget &m_window;
    std::function<void()> m_unlock;
    QString m_title; ///< of the window, as it will be again
    QPointer<QWidget> m_focus;
    QList<QPointer<QWidget>> m_hidden;
    QLabel *m_sign;
    QLabel *m_word;
    QLabel *m_line;
    QPushButton *m_button;
};
