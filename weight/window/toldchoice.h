// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "weight/window/weightdesk.h"

#include <QObject>

class QAction;
class QMenu;

/// Whether the card on the main menu may tell the weight of the open person: a tick that they set for
/// themselves.
class ToldChoice final : public QObject
{
    Q_OBJECT
public:
    ToldChoice(const WeightDesk &desk, QMenu *menu, QObject *parent);

signals:
    void said(const QString &line);

private:
    void choose(bool isTold);
    void mark();

    WeightDesk m_desk;
    QAction *m_command;
};
