// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/passwordgenerator.h"
#include "shell/controls/taskpanel.h"

#include <array>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QSettings;
class QSpinBox;
class SecretFace;

/// "Make a Password": what it is made of, the one that was drawn, and how hard it is to guess.
class GeneratorPanel final : public TaskPanel
{
    Q_OBJECT
public:
    /// The recipe is remembered in `store`; the passwords are not.
    explicit GeneratorPanel(QSettings &store, QWidget *parent = nullptr);

    /// Draws one; with `isForBox` it can be put into the box that asked for it.
    void start(bool isForBox);
    void forget();

public slots:
    void leave() override;

signals:
    void copyWanted(const QString &password);
    void taken(const QString &password);

private:
    QWidget *makeCharacters();
    QWidget *makeWords();
    PasswordGenerator::Recipe recipe() const;
    void restore();
    void followRecipe();
    void draw();

    QSettings &m_store;
    QButtonGroup *m_form;
    QWidget *m_characters;
    QWidget *m_words;
    QSpinBox *m_length;
    std::array<QCheckBox *, 5> m_classes{};
    QSpinBox *m_wordCount;
    QComboBox *m_separator;
    SecretFace *m_face;
    QLabel *m_strength;
    QPushButton *m_again;
    QPushButton *m_copy;
    QPushButton *m_take;
    QString m_password;
};
