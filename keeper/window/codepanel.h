// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"

class SecretFace;

/// Shows a new recovery code, once: it is left only with the word that it was written down or printed.
class CodePanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit CodePanel(QWidget *parent = nullptr);

    void show(const QString &code);
    QString code() const { return m_code; }
    /// Nothing of the code stays behind.
    void forget();

public slots:
    void leave() override;

signals:
    void printWanted(const QString &code);
    /// Esc was pressed: only its button leaves the panel.
    void said(const QString &line);

private:
    SecretFace *m_face;
    QString m_code;
    QPushButton *m_done;
};
