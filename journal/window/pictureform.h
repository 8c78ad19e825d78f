// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalentry.h"
#include "shell/controls/taskpanel.h"

#include <QImage>

class PictureFrame;
class QCheckBox;
class QLineEdit;
struct Program;

/// A picture on its way into an entry: what it looks like, its caption, and whether a copy of it is kept with
/// the journal.
class PictureForm final : public TaskPanel
{
    Q_OBJECT
public:
    explicit PictureForm(const Program &program, QWidget *parent = nullptr);

    /// Shows the picture of a file. False when it cannot be read.
    bool start(const QString &file);
    /// The same for one that is no file, which is always kept.
    void start(const QImage &picture);
    /// Whether the file of one that comes from none may tell of its caption.
    void setNamedAfterCaption(bool isNamed) { m_isNamed = isNamed; }
    void forget();

signals:
    void entered(const JournalPicture &picture);
    void said(const QString &line);

private:
    void show(const QImage &picture, bool isFile);
    void enter();

    const Program &m_program;
    PictureFrame *m_frame;
    QLineEdit *m_caption;
    QCheckBox *m_keep;
    bool m_isNamed = true;
    QString m_file; ///< empty: the image alone
    QImage m_image;
};
