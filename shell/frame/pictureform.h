// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"

#include <QImage>

class PictureFrame;
class QCheckBox;
class QLineEdit;
struct Program;

/// What a picture is taken for, in the words of the function that takes it.
struct PictureFormUse {
    QString name;                             ///< of the panel
    QString title;                            ///< of the panel
    QString take = QStringLiteral("&Insert"); ///< what its button says
    QString keepCopy;                         ///< beside the box to tick
    QString notKept;                          ///< the disk refuses a copy
    QString nameOfNone;                       ///< what the file of a picture is called that comes from none
};

/// A picture on its way into a record that keeps its path: what it looks like, its caption, and whether a
/// copy of it is kept with the household's files.
class PictureForm final : public TaskPanel
{
    Q_OBJECT
public:
    PictureForm(const Program &program, PictureFormUse use, QWidget *parent = nullptr);

    /// Shows the picture of a file. False when it cannot be read.
    bool start(const QString &file);
    /// The same for one that is no file, which is always kept.
    void start(const QImage &picture);
    /// Whether the file of one that comes from none may tell of its caption.
    void setNamedAfterCaption(bool isNamed) { m_isNamed = isNamed; }
    void forget();

signals:
    /// `path` as `KeptPictures` has it.
    void entered(const QString &path, const QString &caption);
    void said(const QString &line);

private:
    void show(const QImage &picture, bool isFile);
    void enter();

    const Program &m_program;
    PictureFormUse m_use;
    PictureFrame *m_frame;
    QLineEdit *m_caption;
    QCheckBox *m_keep;
    bool m_isNamed = true;
    QString m_file; ///< empty: the image alone
    QImage m_image;
};
