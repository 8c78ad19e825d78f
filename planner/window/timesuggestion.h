// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QPointer>

class QLineEdit;

/// The usual form of the time that is being typed, under its box: Tab, Enter or a click takes it, Esc sends
/// it away, and whoever goes on otherwise keeps what was typed.
class TimeSuggestion final : public QAbstractButton
{
    Q_OBJECT
public:
    explicit TimeSuggestion(QWidget *form);

    /// Stands under `box`, which stands on the form, while a time is typed into it.
    void watch(QLineEdit *box);

signals:
    /// The box holds the usual form now.
    void taken();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void follow(QLineEdit *box);
    void take();
    void dismiss();

    QPointer<QWidget> m_box; ///< under which it stands; it loses the focus while it is being destroyed, too
};
