// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDialog>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QVBoxLayout;
struct Message;
struct Program;

/// Asks where the spreadsheet file goes and under which name, and saves it there. It stays open until that
/// went well or is given up.
class ExportBox final : public QDialog
{
    Q_OBJECT
public:
    ExportBox(Program &program, int year, const QByteArray &content, QWidget *parent);

    void accept() override;

private:
    QHBoxLayout *makeFolderRow();
    QHBoxLayout *makeFoot();
    void chooseFolder();
    void folderChanged();
    bool isFolderChosen() const;
    void refuse(const Message &reason, QLineEdit *box);

    Program &m_program;
    QByteArray m_content;
    QLabel *m_folderLabel;
    QLineEdit *m_folder;
    QLineEdit *m_name;
};
