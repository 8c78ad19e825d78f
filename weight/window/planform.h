// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "weight/model/weightsheet.h"
#include "weight/window/weightdesk.h"

#include <QWidget>

#include <array>

class CommentsBox;
class DatePicker;
class FieldBox;
class QBoxLayout;
class QVBoxLayout;

/// The boxes of a person's plan: the name, beginning and goal, the exercise, the comments.
class PlanForm final : public QWidget
{
    Q_OBJECT
public:
    PlanForm(const WeightDesk &desk, DatePicker *picker, QWidget *parent);

    static constexpr std::size_t count = WeightSheet::ExerciseTypes + 1;

    FieldBox *box(std::size_t field) const { return m_boxes[field]; }

    /// Shows `sheet`; a box that is shown as it is stays as it is.
    void show(const WeightSheet &sheet);
    /// `sheet` with what was typed into the boxes since it was shown.
    WeightSheet typed(WeightSheet sheet) const;
    void setLocked(bool locked);

signals:
    /// Something is being typed.
    void edited();
    /// A box was left: what it holds is meant.
    void entered(const QString &caption);
    /// A quiet line for the status bar.
    void said(const QString &line);
    void boxFocused(QWidget *box);

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeBoxes(const WeightDesk &desk, DatePicker *picker);
    QVBoxLayout *labelledBox(WeightSheet::Field field);
    QVBoxLayout *labelledComments();
    QBoxLayout *addRow(QVBoxLayout *rows, std::initializer_list<WeightSheet::Field> fields);

    std::array<FieldBox *, count> m_boxes{};
    std::array<QString, count> m_shown; ///< what the boxes held once they were given their texts
    CommentsBox *m_comments;
    std::array<QBoxLayout *, 2> m_foldable{}; ///< rows whose boxes stand below one another in a narrow form
};
