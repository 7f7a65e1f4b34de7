// SPDX-License-Identifier: GPL-3.0-or-later
#include "GraphFolder.h"

#include "Graph.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {
// "graph 2" before "graph 10", and capitals mixed in with small letters, as a pupil reads them.
bool naturalLess(const QString &a, const QString &b)
{
    // A run of digits without its leading zeros, so that "007" and "7" count as one number.
    auto number = [](const QString &text, qsizetype &k) {
        const qsizetype start = k;
        while (k < text.size() && text[k].isDigit())
            ++k;
        QStringView run = QStringView(text).mid(start, k - start);
        while (run.size() > 1 && run.front() == u'0')
            run = run.mid(1);
        return run;
    };
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < a.size() && j < b.size()) {
        if (a[i].isDigit() && b[j].isDigit()) {
            const QStringView x = number(a, i);
            const QStringView y = number(b, j);
            if (x.size() != y.size())
                return x.size() < y.size();
            if (const int order = x.compare(y); order != 0)
                return order < 0;
            continue;
        }
        const QChar x = a[i].toCaseFolded();
        const QChar y = b[j].toCaseFolded();
        if (x != y)
            return x < y;
        ++i;
        ++j;
    }
    return a.size() - i < b.size() - j;
}

QString & override()
{
    static QString folder;
    return folder;
}
} // namespace

QString GraphFolder::path()
{
    if (!override().isEmpty())
        return override();
    // Test programs never write into the user's documents: their test mode has its own folder.
    const auto base = QStandardPaths::isTestModeEnabled() ? QStandardPaths::GenericDataLocation
                                                          : QStandardPaths::DocumentsLocation;
    return QStandardPaths::writableLocation(base) + QStringLiteral("/Lumbridle/Graphs");
}

void GraphFolder::setPath(const QString &folder)
{
    override() = folder;
}

bool GraphFolder::ensure()
{
    return QDir().mkpath(path());
}

QStringList GraphFolder::names()
{
    const QString extension = QLatin1String(GraphRules::Extension);
    const QFileInfoList files =
        QDir(path()).entryInfoList({u'*' + extension}, QDir::Files | QDir::Readable);
    QStringList result;
    for (const QFileInfo &file : files)
        result.append(file.completeBaseName());
    std::sort(result.begin(), result.end(), naturalLess);
    return result;
}

QString GraphFolder::fileFor(const QString &name)
{
    return path() + u'/' + name + QLatin1String(GraphRules::Extension);
}

bool GraphFolder::exists(const QString &name)
{
    return QFileInfo::exists(fileFor(name));
}
