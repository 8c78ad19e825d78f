// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class PictureFrame;
class QCheckBox;
class QImage;
class QLabel;

/// One of several pictures that show the same: what it looks like, what is known of it, and whether it is to
/// go.
class AlikeTile final : public QWidget
{
    Q_OBJECT
public:
    /// `place` numbers its parts: "alikeGoes_0".
    AlikeTile(int place, QWidget *parent);

    /// `name` and more lines of what is known of it.
    void show(const QString &name, const QString &facts);
    void setImage(const QImage &image);
    void setWords(const QString &words);
    bool isGoing() const;

signals:
    void goingChanged();

private:
    PictureFrame *m_frame;
    QLabel *m_facts;
    QCheckBox *m_goes;
};
