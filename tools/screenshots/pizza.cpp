// SPDX-License-Identifier: GPL-3.0-or-later
// Scenes of Pizza Place: the shop before opening, an evening under way and the sales report.
#include "Scene.h"

#include "pizza/frmPizza.h"
#include "pizza/frmSales.h"
#include "support/TestDoubles.h"

#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

namespace {

// Plays the evening as a sensible pupil would for a number of minutes: bakes small batches,
// loads the car and drives to the oldest order it can fill of at most `largest` pizzas (big
// orders cost more to bake than they pay). The timers' ticks come in their real proportions.
void PlayMinutes(frmPizza *w, int minutes, int &untilCall, int largest = 2)
{
    for (int m = 0; m < minutes && w->evening().isRunning(); ++m) {
        for (int step = 0; step < Evening::BlocksPerMinute; ++step) {
            if (w->timCar->isActive()) {
                w->timCar_Timer();
                continue;
            }
            if (w->cmdLoad->isEnabled())
                w->cmdLoad->click();
            const Evening &evening = w->evening();
            int row = -1;
            for (qsizetype i = 0; i < evening.orders().size(); ++i)
                if (evening.orders()[i].pizzas <= qMin(largest, evening.carPizzas())) {
                    row = int(i);
                    break;
                }
            if (row >= 0) {
                w->lstPizza->setCurrentRow(row);
                w->cmdGo->click();
            } else if (!evening.carAtShop()) {
                w->cmdReturn->click();
            }
        }
        if (w->cmdBake->isEnabled() && w->evening().ready() < 3) {
            w->spnBake->setValue(4);
            w->cmdBake->click();
        }
        if (w->timBake->isActive())
            w->timBake_Timer();
        untilCall -= Evening::MinuteMs;
        while (untilCall <= 0 && w->timPhone->isActive()) {
            w->timPhone_Timer();
            untilCall += w->timPhone->interval();
        }
        w->timClock_Timer();
    }
}

frmPizza *EveningUnderWay()
{
    auto *w = new frmPizza;
    // After the window, which seeds the source from the clock, so the picture is the same
    // every time.
    Randomize(15);
    w->cmdNew->click();
    int untilCall = Evening::FirstCallMs;
    PlayMinutes(w, 97, untilCall, Evening::CarLoad);
    // Mid-way through a trip, with a batch in the oven.
    for (int i = 0; i < 5 && !w->timCar->isActive(); ++i)
        PlayMinutes(w, 1, untilCall, Evening::CarLoad);
    if (w->timCar->isActive())
        w->timCar_Timer();
    for (QTimer *timer : {w->timClock, w->timPhone, w->timBake, w->timCar})
        timer->stop();
    return w;
}

frmSales *EveningReport()
{
    frmPizza window;
    Randomize(15);
    window.cmdNew->click();
    int untilCall = Evening::FirstCallMs;
    PlayMinutes(&window, 299, untilCall);
    const Evening &e = window.evening();
    SalesReport report{
        e.onTimeDeliveries(), e.lateDeliveries(), e.pizzasBaked(), e.milesDriven(), 11, 0};
    auto *sales = new frmSales(report);
    sales->setAttribute(Qt::WA_DeleteOnClose);
    for (QTimer *timer : window.findChildren<QTimer *>())
        timer->stop();
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    return sales;
}

} // namespace

QList<Scene> pizzaScenes()
{
    return {
        {QStringLiteral("pizza-open"), [] { return new frmPizza; }},
        {QStringLiteral("pizza-evening"), [] { return EveningUnderWay(); }},
        {QStringLiteral("pizza-report"), [] { return EveningReport(); }, QSize(560, 640)},
    };
}
