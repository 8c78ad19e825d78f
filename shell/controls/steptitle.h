// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class ElidedLabel;
class QPushButton;

/// The title line of a view in time: what is shown, one step back, back to today, one step on.
class StepTitle final : public QWidget
{
    Q_OBJECT
public:
    struct Names {
        QString title;  ///< object name of the title
        QString unit;   ///< "day": ends the object names of the buttons, and their tool tips
        QString middle; ///< caption of the button between the arrows
    };

    StepTitle(const Names &names, QWidget *parent);

    /// `shorter` is shown where `title` does not fit.
    void setTitle(const QString &title, const QString &shorter = {});
    const QString &title() const { return m_text; }

signals:
    void stepped(int steps);
    void todayRequested();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void showTitle();

    ElidedLabel *m_title;
    QString m_text;
    QString m_shorter;
};
