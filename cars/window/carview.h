// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/cardesk.h"
#include "shell/core/message.h"

#include <QWidget>

class ButtonRow;
class QVBoxLayout;
class TitleLine;

/// A view of the open car: its title, what it shows, and the buttons in its foot. The name of the car stands
/// at the right of the title.
class CarView : public QWidget
{
    Q_OBJECT
public:
    /// "due" names the view dueView, its title dueTitle and its foot dueFoot.
    CarView(const QString &name, const CarDesk &desk);

    TitleLine &titleLine() const { return *m_title; }
    ButtonRow &foot() const { return *m_foot; }
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
    /// Adds what stands between title and foot, from top to bottom.
    void addContent(QWidget *content, int stretch = 0);
    /// The open car is another than before, or the view comes into sight: shows it.
    virtual void refresh() = 0;

    void showEvent(QShowEvent *event) override;

private:
    void refreshIfSeen();

    CarDesk m_desk;
    TitleLine *m_title;
    QVBoxLayout *m_rows;
    ButtonRow *m_foot;
    bool m_isStale = true; ///< the car has changed while the view was out of sight
};
