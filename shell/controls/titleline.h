// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class ElidedLabel;
class QHBoxLayout;
class QLabel;

/// The head of a view: its title, a chip beside it, quiet words at the right. Where they do not all fit, the
/// chip gives way first; then a shorter title stands in, in smaller letters if need be, and at last it is
/// cut.
class TitleLine final : public QWidget
{
    Q_OBJECT
public:
    /// `name` is the object name of the title.
    TitleLine(const QString &name, const QString &title, QWidget *parent);

    /// `shorter` is shown where `title` does not fit.
    void setTitle(const QString &title, const QString &shorter = {});
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
    /// Shows what has room; all of it where nobody has said yet how much that is.
    void fitTitle();
    void placeChip();

    QString m_text;
    QString m_shorter;
    ElidedLabel *m_title;
    QLabel *m_chip = nullptr;
    QList<QWidget *> m_right;
    QHBoxLayout *m_layout;
};
