// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"
#include "weight/model/weighin.h"
#include "weight/window/weightdesk.h"

#include <QWidget>

class DateBox;
class DatePicker;
class FieldBox;
class QBoxLayout;
class QLabel;
class QPushButton;

/// The line in which a weigh-in is entered: the weight and Enter are enough, the date is today's unless
/// another one is typed. Beside it stands what the weight means while one types.
class WeighInEntry final : public QWidget
{
    Q_OBJECT
public:
    /// `picker` opens beside the date.
    WeighInEntry(const WeightDesk &desk, DatePicker *picker, QWidget *parent);

    /// What was typed, as it was typed.
    WeighIn typed() const;
    bool isTyped() const;
    /// Today's date and no weight.
    void clear();
    /// The sheet is another than before.
    void refresh();
    /// Puts the cursor where the date or the weight is typed.
    void typeDate();
    void typeWeight();
    /// Puts the button that does what Enter does behind the boxes.
    void setButton(QPushButton *button);

signals:
    /// Enter was pressed.
    void entered();
    /// A quiet line for the status bar.
    void said(const QString &line);
    /// The date that was picked is refused.
    void noticed(const Message &message);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void takePicked();
    void showFact();
    void placeFact();

    WeightDesk m_desk;
    DateBox *m_date;
    FieldBox *m_weight;
    QLabel *m_fact;
    QBoxLayout *m_rows;
    QBoxLayout *m_row;
    bool m_isFactBelow = false;
};
