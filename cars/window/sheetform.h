// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carneeds.h"
#include "cars/model/carrecord.h"

#include <QWidget>

#include <array>
#include <vector>

class FieldBox;
class PictureFrame;
class QBoxLayout;
class QComboBox;
class QPushButton;
class QLabel;
class QVBoxLayout;
class SignLine;

/// The boxes of a car's information sheet in their groups, its name above them and its picture beside them.
/// Two columns where there is room, one below the other where there is not.
class SheetForm final : public QWidget
{
    Q_OBJECT
public:
    explicit SheetForm(QWidget *parent = nullptr);

    /// The name, box 0, and the texts of the sheet behind it.
    static constexpr std::size_t count = VehicleSheet::fieldCount + 1;
    static constexpr std::size_t nameBox = 0;
    static constexpr std::size_t boxOf(VehicleSheet::Field field) { return field + 1; }

    FieldBox *box(std::size_t place) const { return m_boxes[place]; }
    PictureFrame *picture() const { return m_picture; }

    /// Shows `car`; a box that is shown as it is stays as it is.
    void show(const CarRecord &car);
    /// `car` with what was typed into the boxes since it was shown.
    CarRecord typed(CarRecord car) const;
    void setLocked(bool locked);
    /// Whether the word "required" stands beside what a new car must have.
    void setNew(bool isNew);
    /// What is to be said below the date of the insurance.
    struct Fact {
        CarNeed::State state = CarNeed::State::NoInterval;
        QString words;
    };
    /// "Registration Is Due" stands below its month.
    void setFacts(CarNeed::State registration, const Fact &insurance);
    /// Puts a button under the picture.
    void setPictureButton(QPushButton *button);

    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

signals:
    /// Something is being typed.
    void edited();
    /// A box was left, or something was chosen in it: what it holds is meant.
    void entered(std::size_t place);
    /// A quiet line for the status bar.
    void said(const QString &line);
    void boxFocused(QWidget *box);

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeBoxes();
    QComboBox *makeChoice(const QString &name, std::size_t place);
    QWidget *controlOf(std::size_t place) const;
    QVBoxLayout *labelledBox(std::size_t place, bool isRequired = false);
    QWidget *makeGeneralColumn();
    QWidget *makeSideColumn();
    QWidget *makeMaintenanceRows();
    void addRow(QVBoxLayout *column, std::initializer_list<VehicleSheet::Field> fields);
    void offerModels();
    void showRequired();
    void setTabOrders();

    std::array<FieldBox *, count> m_boxes{};
    std::array<QString, count> m_shown; ///< what the boxes held once they were given their texts
    std::vector<QComboBox *> m_choices;
    std::vector<QLabel *> m_required; ///< labels that say so, each behind the one that does not
    QComboBox *m_make = nullptr;
    QComboBox *m_model = nullptr;
    SignLine *m_registrationDue = nullptr;
    SignLine *m_insuranceFact = nullptr;
    QLabel *m_nameLabel = nullptr;
    QLabel *m_odometerLabel = nullptr;
    PictureFrame *m_picture = nullptr;
    QVBoxLayout *m_pictureColumn = nullptr;
    QBoxLayout *m_columns = nullptr;
    std::vector<QBoxLayout *> m_maintenanceRows;
    bool m_isNew = false;
};
