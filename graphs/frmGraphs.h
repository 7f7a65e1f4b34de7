// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Graph.h"
#include "Lesson.h"

#include "shell/ActivityWindow.h"

#include <optional>
#include <QList>

class ChartView;
class ColourSwatch;
class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollArea;
class QStackedWidget;
class QTextEdit;

// The graph builder: the pupil picks a kind of graph, types its titles, scale and up to twelve
// labelled values in four format steps, sees the chart drawn beside them, and saves, opens,
// clears, prints it or follows the guided lesson.
class frmGraphs : public ActivityWindow {
    Q_OBJECT
public:
    explicit frmGraphs(QWidget *parent = nullptr);
    ~frmGraphs() override;

    // What the boxes hold now, as a graph (values that are not numbers count as 0).
    Graph graphFromControls() const;
    // Puts a graph in the boxes and draws it.
    void showGraph(const Graph &graph);
    QString fileName() const { return m_name; }
    bool isUnsaved() const { return m_unsaved; }
    bool inLesson() const { return m_lessonStep >= 0; }
    int lessonStep() const { return m_lessonStep; }
    int formatStep() const;
    void goToStep(int step);

    ChartView *picGraph;
    QGroupBox *fraFormat;
    QList<QPushButton *> cmdStep;
    QStackedWidget *pages;
    QList<QRadioButton *> optType;
    QLineEdit *txtTitle;
    QLineEdit *txtXTitle;
    QLineEdit *txtYTitle;
    QLineEdit *txtYMin;
    QLineEdit *txtYmax;
    QLineEdit *txtYDiv;
    QCheckBox *chkYGrid;
    QLabel *lblScaleStep;
    QLabel *lblPieScale;
    QList<QLineEdit *> txtXLabel;
    QList<QLineEdit *> txtYValue;
    QList<ColourSwatch *> lblColor;
    QList<ColourSwatch *> lblColorChoice;
    QCheckBox *chkPiePercent;
    QLabel *lblDataHint;
    QScrollArea *fraRows;
    QPushButton *cmdFormatOK;
    QPushButton *cmdNewGraph;
    QPushButton *cmdOpenGraph;
    QPushButton *cmdSaveGraph;
    QPushButton *cmdClear;
    QPushButton *cmdPrint;
    QPushButton *cmdLearn;
    QPushButton *cmdHelp;
    QPushButton *cmdBuildDone;
    QGroupBox *fraLearn;
    QTextEdit *txtLearn;
    QPushButton *cmdChange;
    QPushButton *cmdStopLearn;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void buildControls();
    QWidget *buildKindPage();
    QWidget *buildTitlesPage();
    QWidget *buildScalePage();
    QWidget *buildDataPage();
    void updateStepCaptions();
    void setColourRow(int row);
    void describeScale();
    void edited();
    void redraw();
    void setCaption();
    // Checks the scale (and, when asked, the data against it) and reports the first problem.
    bool checkScale();
    bool checkData();

    bool confirmDrop(const QString &title, const QString &question);
    bool saveGraph();
    void cmdFormatOK_Click();
    void cmdNewGraph_Click();
    void cmdOpenGraph_Click();
    void cmdSaveGraph_Click();
    void cmdClear_Click();
    void cmdPrint_Click();
    void cmdLearn_Click();
    void cmdChange_Click();
    void cmdStopLearn_Click();
    void showLessonStep();
    void enableForLesson(int controls);

    QString m_name;
    bool m_unsaved = false;
    bool m_filling = false;
    int m_colourRow = 0;
    int m_lessonStep = -1;
    QList<Lesson::Step> m_lesson;
    // The pupil's own work, put back when the lesson ends.
    struct Stash {
        Graph graph;
        QString name;
        bool unsaved = false;
    };
    std::optional<Stash> m_stash;
};
