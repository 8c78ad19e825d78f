// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

/// The years that a budget can be of; its list opens around the one that is shown.
class YearBox final : public QComboBox
{
    Q_OBJECT
public:
    explicit YearBox(QWidget *parent = nullptr);

    void setYear(int year);
    void showPopup() override;
    void hidePopup() override;

signals:
    /// The user chose a year, perhaps the one that was shown.
    void yearChosen(int year);
    /// The year was chosen in the list, and the work goes on elsewhere.
    void done();

private:
    bool m_isListOpen = false;
};
