// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/onetimecode.h"

#include <QTimer>
#include <QWidget>

#include <optional>

class Clock;
class QLabel;
class QPushButton;

/// The one-time code of now, with the seconds that it still holds: those are painted alone, and not read out
/// each second.
class OneTimeLine final : public QWidget
{
    Q_OBJECT
public:
    OneTimeLine(const Clock &clock, QWidget *parent);

    /// Hidden where `secret` is empty; says why where it cannot be read.
    void setSecret(const QString &secret);

signals:
    void copyWanted(const QString &code);

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void follow();

    const Clock &m_clock;
    std::optional<OneTimeSecret> m_secret;
    QLabel *m_code;
    QPushButton *m_copy;
    QTimer m_timer;
    int m_left = 0;
};
