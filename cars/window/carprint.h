// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carpages.h"
#include "cars/window/cardesk.h"
#include "shell/pictures/papercopies.h"

#include <QObject>

#include <functional>

class QAction;
class QMenu;

/// What is printed of the cars, as they are shown, saved or not.
class CarPrint final : public QObject
{
    Q_OBJECT
public:
    /// What of the open car.
    enum class Sheet { Information, Schedule, Maintenance, Repairs, Fuel };

    /// `shown` tells what stands in front; `finish` ends what is being typed.
    CarPrint(const CarDesk &desk, std::function<Sheet()> shown, std::function<void()> finish,
             QObject *parent);

    /// Puts the commands into `menu`, and the first on the toolbar; the tool that it is there.
    QAction *addCommands(QMenu *menu);
    void printCosts();

private:
    /// A page of the open car and its pictures.
    using Builder = std::function<Page(const CarRecord &, const CarPages::Pictures &, const PageContext &)>;

    void printShown();
    void printAll();
    void show(const QString &what, const Builder &builder);
    CarPages::Pictures pictures();
    bool isThere();

    CarDesk m_desk;
    std::function<Sheet()> m_shown;
    std::function<void()> m_finish;
    PaperCopies m_copies;
};
