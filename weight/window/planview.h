// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "weight/window/personview.h"

class PlanForm;

/// The plan of the open person, and their name. What is typed belongs to the sheet as soon as its box is
/// left, and is one step of undo then.
class PlanView final : public PersonView
{
    Q_OBJECT
public:
    explicit PlanView(const WeightDesk &desk);

    void finishEdit() override;
    /// Puts the cursor into the box of the name.
    void typeName();

protected:
    void refresh() override;

private:
    void take(const QString &caption);

    PlanForm *m_form;
};
