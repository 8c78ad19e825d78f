// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/carview.h"
#include "shell/pictures/picturefolder.h"

class SheetForm;
struct CarRecord;

/// The information sheet of the open car, and its name. What is typed belongs to the car as soon as its box
/// is left, and is one step of undo then.
class InformationView final : public CarView
{
    Q_OBJECT
public:
    explicit InformationView(const CarDesk &desk);

    SheetForm &form() const { return *m_form; }
    void finishEdit() override;

protected:
    void refresh() override;

private:
    void take(std::size_t place);
    QString amend(CarRecord &wanted) const;
    void showPicture();
    void showFacts();

    SheetForm *m_form;
    PictureFolder m_pictures;
    QString m_pictureShown; ///< as the sheet has it
};
