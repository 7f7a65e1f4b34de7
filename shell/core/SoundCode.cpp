// SPDX-License-Identifier: GPL-3.0-or-later
#include "SoundCode.h"

QString SoundCode(const QString &word)
{
    const QString upper = word.toUpper();
    if (upper.isEmpty())
        return {};
    QString code(upper.at(0));
    int previous = -1;
    for (qsizetype i = 1; i < upper.size(); ++i) {
        const char16_t c = upper.at(i).unicode();
        if (c < u'A' || c > u'Z')
            continue;
        const int letterCode = SoundTable[c - u'A'];
        if (letterCode != 0 && letterCode != previous)
            code += QChar(u'0' + letterCode);
        previous = letterCode;
    }
    return code;
}
