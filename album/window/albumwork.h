// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSplitter>

/// The pictures, and what is known of them beside them or, where that leaves too little width, below.
class AlbumWork final : public QSplitter
{
    Q_OBJECT
public:
    AlbumWork(QWidget *pictures, QWidget *details, QWidget *parent = nullptr);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void share();

    QWidget *m_details;
    bool m_isPlaced = false; ///< by the person: the shares stay
};
