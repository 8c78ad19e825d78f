// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/cardesk.h"
#include "shell/controls/titledview.h"
#include "shell/core/message.h"

/// A view of the open car. The name of the car stands at the right of the title.
class CarView : public TitledView
{
    Q_OBJECT
public:
    CarView(const QString &name, const CarDesk &desk);

    /// Puts what is still being typed into the open car.
    virtual void finishEdit() {}

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);
    /// Something to be told in a box, as soon as no other is typed into.
    void noticed(const Message &message);

protected:
    const CarDesk &desk() const { return m_desk; }
    OpenCar &car() const { return m_desk.car; }

private:
    CarDesk m_desk;
};
