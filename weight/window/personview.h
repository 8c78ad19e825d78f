// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/titledview.h"
#include "shell/core/message.h"
#include "weight/window/weightdesk.h"

class QLabel;

/// A view of the open person.
class PersonView : public TitledView
{
    Q_OBJECT
public:
    PersonView(const QString &name, const WeightDesk &desk);

    /// Puts what is still being typed into the open person's sheet.
    virtual void finishEdit() {}

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);
    /// The same of something that was done and can be taken back.
    void done(const QString &line);
    /// Something to be told in a box, as soon as no other is typed into.
    void noticed(const Message &message);

protected:
    const WeightDesk &desk() const { return m_desk; }
    OpenPerson &person() const { return m_desk.person; }

private:
    void showTrouble();

    WeightDesk m_desk;
    QLabel *m_trouble; ///< what is wrong with the person's file
};
