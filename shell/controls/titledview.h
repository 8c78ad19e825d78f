// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class ButtonRow;
class QVBoxLayout;
class ScrollPart;
class TitleLine;

/// A view of a work panel: its title, what it shows, a line, and the buttons in its foot. Where there is too
/// little height for all of it, what it shows scrolls between title and foot. It follows what it shows only
/// while it is in sight.
class TitledView : public QWidget
{
    Q_OBJECT
public:
    /// "due" names the view dueView, its title dueTitle, what scrolls dueScroll and its foot dueFoot.
    explicit TitledView(const QString &name, QWidget *parent = nullptr);

    TitleLine &titleLine() const { return *m_title; }
    ButtonRow &foot() const { return *m_foot; }

protected:
    /// Adds what stands between title and foot, from top to bottom.
    void addContent(QWidget *content, int stretch = 0);
    /// Spares room around and between the parts, as in a low window.
    void setTight(bool isTight);
    /// The part between title and foot.
    ScrollPart &scroll() const { return *m_scroll; }
    /// What the view shows is another than before, `isModified` where no file has it yet: shows it, as soon
    /// as the view is in sight.
    void follow(bool isModified);
    /// Shows it.
    virtual void refresh() = 0;

    void showEvent(QShowEvent *event) override;

private:
    TitleLine *m_title;
    QVBoxLayout *m_rows;
    QWidget *m_content;
    QVBoxLayout *m_parts; ///< of the content
    ScrollPart *m_scroll;
    ButtonRow *m_foot;
    bool m_isStale = true; ///< it has changed while the view was out of sight
};
