// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/controls.h"

class QStringListModel;

/// The line into which something new is typed. Enter adds it and leaves the line open for the next; of a text
/// that is pasted or dropped in several lines, each becomes a thing of its own.
class EntryLine final : public FieldBox
{
    Q_OBJECT
public:
    explicit EntryLine(QWidget *parent = nullptr);

    /// What is offered while one types.
    void setOffers(const QStringList &offers);

signals:
    void entered(const QStringList &lines);
    /// Down was pressed: on to the rows below.
    void leftDown();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool takeLines(const QString &pasted);
    void enter();

    QStringListModel *m_offers;
};
