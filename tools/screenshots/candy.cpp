// SPDX-License-Identifier: GPL-3.0-or-later
// Scenes of Candy Drive: before a contest, a morning of planning, a day's report, the end of
// the contest and the certificate.
#include "Scene.h"

#include "candy/CandyPapers.h"
#include "candy/frmCandy.h"
#include "candy/frmDayReport.h"
#include "support/TestDoubles.h"

#include <QComboBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

namespace {

// Plays `days` days as a thoughtful pupil would: each team to a different street among those
// that look best on the map today.
void PlayDays(frmCandy *w, int days)
{
    for (int d = 0; d < days && w->isRunning(); ++d) {
        const Contest &contest = *w->contest();
        QList<int> chosen;
        for (int t = 0; t < contest.teams(); ++t) {
            int best = -1;
            for (int s = 0; s < contest.streets().size(); ++s)
                if (!chosen.contains(s) &&
                    (best < 0 || contest.outlook(s, true) > contest.outlook(best, true)))
                    best = s;
            chosen.append(best);
            w->cboStreet[t]->setCurrentIndex(best + 1);
        }
        w->cmdSell->click();
    }
}

frmCandy *Started(int teams, int days)
{
    auto *w = new frmCandy;
    w->optTeams[teams - 1]->setChecked(true);
    // After the window, which seeds the source from the clock, so the picture is the same
    // every time.
    Randomize(21);
    w->cmdNew->click();
    PlayDays(w, days);
    return w;
}

frmCandy *Planning()
{
    frmCandy *w = Started(3, 4);
    w->cboStreet[0]->setCurrentIndex(3);
    w->cboStreet[1]->setCurrentIndex(6);
    return w;
}

// The certificate as it is printed, on a page-shaped card.
class Certificate : public QWidget {
public:
    Certificate()
    {
        m_window = Started(3, Contest::Days);
        m_window->hide();
    }
    ~Certificate() override
    {
        m_window->setAttribute(Qt::WA_DeleteOnClose, false);
        delete m_window;
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(0xEC, 0xEF, 0xF1));
        CandyPapers::drawCertificate(painter, QRectF(rect()).adjusted(20, 20, -20, -20),
                                     *m_window->contest());
    }

private:
    frmCandy *m_window;
};

QWidget *Report(int days)
{
    frmCandy window;
    window.optTeams[2]->setChecked(true);
    Randomize(21);
    window.cmdNew->click();
    PlayDays(&window, days);
    auto *report = new frmDayReport(*window.contest(), days);
    report->setAttribute(Qt::WA_DeleteOnClose);
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    return report;
}

} // namespace

QList<Scene> candyScenes()
{
    return {
        {QStringLiteral("candy-open"), [] { return new frmCandy; }},
        {QStringLiteral("candy-planning"), [] { return Planning(); }},
        {QStringLiteral("candy-report"), [] { return Report(4); }, QSize(900, 720)},
        {QStringLiteral("candy-end"), [] { return Started(3, Contest::Days); }},
        {QStringLiteral("candy-final-report"), [] { return Report(Contest::Days); },
         QSize(900, 720)},
        {QStringLiteral("candy-certificate"), [] { return new Certificate; }, QSize(850, 620)},
    };
}
