// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QList>
#include <QSize>
#include <QString>

class QWidget;

// One picture to take: a window in one state. `make` builds and shows the window and brings
// it to the state to be pictured (the test doubles of tests/support are installed, so sounds,
// pauses and message boxes never block); the tool grabs it at `size` and then deletes it.
struct Scene {
    QString name;
    std::function<QWidget *()> make;
    QSize size{1024, 768};
};

QList<Scene> shellScenes();
QList<Scene> mathraceScenes();
QList<Scene> stopthiefScenes();
QList<Scene> pizzaScenes();
QList<Scene> balloonScenes();
QList<Scene> spaceraceScenes();
QList<Scene> geographyScenes();
QList<Scene> cardsScenes();
QList<Scene> calendarScenes();
QList<Scene> graphsScenes();
QList<Scene> typingScenes();
QList<Scene> mathtutorScenes();
QList<Scene> worldgeoScenes();
QList<Scene> presidentsScenes();
QList<Scene> lemonadeScenes();
QList<Scene> candyScenes();
