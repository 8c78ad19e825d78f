// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/comparedcopy.h"

#include "shell/access/passwordcheck.h"

void ComparedCopy::readAreas()
{
    areas = PasswordCheck(DataFolder(folder.path())).areas();
}
