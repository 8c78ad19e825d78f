#pragma once

#include "shell/message.h"

/// The questions and notices of password control and of the password prompt.
namespace PasswordMessages {

inline QString title()
{
    return QStringLiteral("Password Control");
}

/// Nothing guarded opens and nothing is saved while the password file is in this state. `folder` is where the
/// good copy belongs.
inline Message fileDamaged(const QString &folder)
{
    return {title(),
            QStringLiteral(
                "The password file is damaged.\n"
                "Until it is mended, nothing opens that a password can guard, and no password can be "
                "set or changed.\n"
                "To mend it, close Quillery, copy the file PCtrl1.Fil from your backup into the folder "
                "%1 and start Quillery again.")
                .arg(folder),
            Message::Critical};
}

/// Asked when password control is left with marks that were changed and not saved.
inline Message saveChanges()
{
    return {title(),
            QStringLiteral("Save changes made to the protected areas?"),
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::Yes};
}

inline QString wrongPassword()
{
    return QStringLiteral("That is not the password.");
}

} // namespace PasswordMessages
