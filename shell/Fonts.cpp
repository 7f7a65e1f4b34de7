// SPDX-License-Identifier: GPL-3.0-or-later
#include "Fonts.h"

#include <QFont>
#include <QFontDatabase>
#include <QStringList>

void InstallFontSubstitutes()
{
    const QStringList installed = QFontDatabase::families();
    const struct {
        const char *wanted;
        const char *substitute;
    } table[] = {{"Comic Sans MS", "Comic Neue"},
                 {"Courier New", "Liberation Mono"},
                 {"Times New Roman", "Liberation Serif"},
                 {"Arial", "Liberation Sans"}};
    for (const auto &entry : table)
        if (!installed.contains(QLatin1String(entry.wanted)))
            QFont::insertSubstitution(QLatin1String(entry.wanted), QLatin1String(entry.substitute));
}
