// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class ElidedLabel;
class QHBoxLayout;
class QLabel;

/// The head of a view: its title, a chip beside it, quiet words at the right. Where they do not all fit, the
/// chip gives way first; then the title is cut.
class TitleLine final : public QWidget
{
    Q_OBJECT
public:
    /// `name` is the object name of the title.
    TitleLine(const QString &name, const QString &title, QWidget *parent);

    void setTitle(const QString &title);
    QString title() const;
    ElidedLabel *label() const { return m_title; }

    /// Puts a chip behind the title; it is shown once it has a text.
    QLabel *addChip(const QString &name);
    void setChip(const QString &text);

    /// Puts quiet words at the right end.
    QLabel *addWords(const QString &name);
    /// Puts something else at the right end.
    void addAtRight(QWidget *part);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    int rightWidth() const;
    void placeChip();

    ElidedLabel *m_title;
    QLabel *m_chip = nullptr;
    QList<QWidget *> m_right;
    QHBoxLayout *m_layout;
};
