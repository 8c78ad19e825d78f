// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/window/journaldesk.h"

#include <QObject>

class PictureForm;
class QMenu;
class QMimeData;

/// Pictures of the page that is open: chosen, dropped or pasted, with their captions.
class PictureCommands final : public QObject
{
    Q_OBJECT
public:
    PictureCommands(const JournalDesk &desk, QObject *parent);

    void addCommands(QMenu *edit);
    /// Nothing of any entry is left.
    void forget();

signals:
    void said(const QString &line);

private:
    void choose();
    void take(const QMimeData &data);
    void openFile(const QString &file);
    PictureForm &form();
    void bring();
    void askCaption();
    QString whyLocked() const;

    JournalDesk m_desk;
    PictureForm *m_form = nullptr;
};
