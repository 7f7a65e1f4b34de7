// SPDX-License-Identifier: GPL-3.0-or-later
// Scenes of Lemonade Stand: planning a week, the customers at the stand, a sales report and
// the end of the summer.
#include "Scene.h"

#include "lemonade/frmLemon.h"
#include "support/TestDoubles.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

namespace {

// Buys for about the customers the forecast promises at a fair price, as a pupil who reads
// the reports learns to do.
void PlanWisely(frmLemon *w)
{
    const Summer &s = w->summer();
    const int posters = s.forecast() <= Weather::Cloudy ? 2 : 0;
    const int expected = Demand::expectedVisitors(s.forecast(), posters, s.reputation());
    w->spnPosters->setValue(posters);
    w->spnPrice->setValue(FairPrice(s.forecastTemperature()));
    w->spnLemons->setValue((expected + 39) / 40);
    w->spnCups->setValue(qMax(0, expected - s.cups() + 24) / 25);
}

frmLemon *Started(qint64 seed)
{
    auto *w = new frmLemon;
    // After the window, which seeds the source from the clock, so the pictures are the same
    // every time.
    Randomize(seed);
    w->cmdNew->click();
    return w;
}

frmLemon *Planning()
{
    frmLemon *w = Started(3);
    for (int week = 0; week < 2; ++week) {
        PlanWisely(w);
        w->cmdSell->click();
        w->cmdSkip->click();
        w->cmdNext->click();
    }
    PlanWisely(w);
    return w;
}

frmLemon *Selling()
{
    frmLemon *w = Started(3);
    PlanWisely(w);
    w->cmdSell->click();
    w->timSell->stop();
    for (int i = 0; i < frmLemon::SellingFrames * 2 / 5; ++i)
        w->timSell_Timer();
    return w;
}

frmLemon *Report()
{
    frmLemon *w = Started(3);
    PlanWisely(w);
    w->spnCups->setValue(w->spnCups->value() - 2);
    w->cmdSell->click();
    w->cmdSkip->click();
    return w;
}

frmLemon *EndOfSummer()
{
    frmLemon *w = Started(5);
    while (w->isPlaying()) {
        PlanWisely(w);
        w->cmdSell->click();
        w->cmdSkip->click();
        w->cmdNext->click();
    }
    w->txtName->setText(QStringLiteral("Maya"));
    return w;
}

} // namespace

QList<Scene> lemonadeScenes()
{
    return {
        {QStringLiteral("lemonade-start"), [] { return new frmLemon; }},
        {QStringLiteral("lemonade-plan"), [] { return Planning(); }},
        {QStringLiteral("lemonade-selling"), [] { return Selling(); }},
        {QStringLiteral("lemonade-report"), [] { return Report(); }},
        {QStringLiteral("lemonade-end"), [] { return EndOfSummer(); }},
    };
}
