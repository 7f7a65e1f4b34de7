// SPDX-License-Identifier: GPL-3.0-or-later
#include "Fonts.h"

#include <QFont>

void InstallFontSubstitutes()
{
    const struct {
        const char *wanted;
        const char *substitute;
    } table[] = {{"Comic Sans MS", "Comic Neue"},
                 {"Courier New", "Liberation Mono"},
                 {"Times New Roman", "Liberation Serif"},
                 {"Arial", "Liberation Sans"}};
    // A substitute is only used when the font asked for is not installed; asking the font
    // database first would cost the start-up several milliseconds.
    for (const auto &entry : table)
        QFont::insertSubstitution(QLatin1String(entry.wanted), QLatin1String(entry.substitute));
}

QFont FriendlyFont(double pointSize)
{
    QFont font(QStringLiteral("Comic Sans MS"));
    font.setPointSizeF(pointSize);
    return font;
}
