// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

// The guided lesson: steps that read and then build a line graph, two bar charts and two pie
// charts from the lesson files, each step naming the file it opens, the part of the format
// steps it shows and the only controls the pupil may use while it is on screen.
class Lesson {
    Q_DECLARE_TR_FUNCTIONS(Lesson)
public:
    enum Control {
        None = 0,
        Type = 1,
        Titles = 2,
        Scale = 4,
        Grid = 8,
        Data = 16,
        Colours = 32,
        PiePercent = 64,
        Draw = 128,
    };
    // The format steps a lesson step can show.
    enum Page { KindPage = 0, TitlesPage = 1, ScalePage = 2, DataPage = 3 };

    struct Step {
        QString file; // a lesson file to open first, or empty to keep the graph on screen
        int page = KindPage;
        int controls = None;
        QString text;
    };

    static QList<Step> steps();
    static QStringList files();
};
