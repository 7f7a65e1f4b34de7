// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TestDoubles.h"

#include "graphs/ChartView.h"
#include "graphs/ColourSwatch.h"
#include "graphs/frmGraphFile.h"
#include "graphs/frmGraphs.h"
#include "graphs/GraphFolder.h"
#include "graphs/GraphPaper.h"

#include "shell/core/Settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QtTest>

// The builder's flows: the unsaved-work questions, saving with the overwrite question, opening
// good and damaged files, the scale and data checks, the number boxes, printing and the lesson.
class tst_frmgraphs : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void opensAsANewGraph();
    void unsavedQuestions_data();
    void unsavedQuestions();
    void saveAsksBeforeOverwriting();
    void failedSaveAndOpenChangeNothing();
    void scaleAndDataChecks();
    void numberBoxesAndKeys();
    void colourFromThePaintBox();
    void printsALandscapePage();
    void lessonRunsToItsEnd();

private:
    // Answers the save dialog with `saveName` and the open dialog with `openName`.
    void answerFileDialogs(const QString &saveName, const QString &openName = {});
    static void typeRow(frmGraphs &window, int row, const QString &label, const QString &value);

    std::unique_ptr<TestEnvironment> m_env;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_frmgraphs::initTestCase()
{
    InitTestProgram();
}

void tst_frmgraphs::init()
{
    m_env = std::make_unique<TestEnvironment>();
    m_folder = std::make_unique<QTemporaryDir>();
    GraphFolder::setPath(m_folder->filePath(QStringLiteral("Graphs")));
}

void tst_frmgraphs::cleanup()
{
    GraphFolder::setPath({});
    m_folder.reset();
    m_env.reset();
}

void tst_frmgraphs::answerFileDialogs(const QString &saveName, const QString &openName)
{
    m_env->dialogs.onRun = [saveName, openName](QDialog &dialog) {
        auto *files = dialog.findChild<QComboBox *>(QStringLiteral("cboFiles"));
        if (files->isEditable())
            files->setEditText(saveName);
        else
            files->setCurrentIndex(files->findText(openName));
        return int(QDialog::Accepted);
    };
}

void tst_frmgraphs::typeRow(frmGraphs &window, int row, const QString &label, const QString &value)
{
    window.goToStep(3);
    window.txtXLabel[row]->setFocus();
    QTest::keyClicks(window.txtXLabel[row], label);
    window.txtYValue[row]->setFocus();
    QTest::keyClicks(window.txtYValue[row], value);
}

void tst_frmgraphs::opensAsANewGraph()
{
    TheSettings().graphs.value = 2;
    frmGraphs window;
    window.show();
    QCOMPARE(window.windowTitle(), QStringLiteral("Graphs & Charts"));
    QCOMPARE(window.fileName(), QStringLiteral("NEW"));
    QVERIFY(window.optType[Graph::PieChart]->isChecked());
    QCOMPARE(window.txtTitle->text(), QStringLiteral("Graph/Chart Title"));
    QCOMPARE(window.txtYMin->text(), QStringLiteral("0"));
    QCOMPARE(window.txtYmax->text(), QStringLiteral("10"));
    QCOMPARE(window.txtYDiv->text(), QStringLiteral("10"));
    QVERIFY(window.graphFromControls().points.isEmpty());
    QVERIFY(!window.isUnsaved());
    // The kind chosen last is kept for the next time.
    window.optType[Graph::BarChart]->click();
    QCOMPARE(TheSettings().graphs.value, qint16(Graph::BarChart));
    QVERIFY(window.isUnsaved());
    // A pie chart's scale step says why it has no scale; the others hide that note.
    QVERIFY(!window.lblPieScale->isVisibleTo(&window));
}

void tst_frmgraphs::unsavedQuestions_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("question");
    QTest::addColumn<int>("answer");
    const QString lost = QStringLiteral("Data in unsaved graph/chart will be lost.  Do you want to "
                                        "save your current graph/chart before ");
    const struct {
        const char *button;
        const char *title;
        QString question;
    } actions[] = {
        {"cmdNewGraph", "New Graph/Chart", lost + QStringLiteral("you start a new graph/chart?")},
        {"cmdOpenGraph", "Open Graph/Chart", lost + QStringLiteral("you open another one?")},
        {"cmdClear", "Clear Data", lost + QStringLiteral("you clear the data?")},
        {"cmdBuildDone", "Done Building",
         QStringLiteral("Data in unsaved graph/chart will be lost. Do you want save your "
                        "graph/chart before you return to menu?")},
    };
    for (const auto &action : actions)
        for (const auto answer : {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel})
            QTest::addRow("%s %d", action.button, int(answer))
                << QString::fromLatin1(action.button) << QString::fromLatin1(action.title)
                << action.question << int(answer);
}

void tst_frmgraphs::unsavedQuestions()
{
    QFETCH(QString, button);
    QFETCH(QString, title);
    QFETCH(QString, question);
    QFETCH(int, answer);
    Graph other;
    other.title = QStringLiteral("Other graph");
    other.points = {{QStringLiteral("x"), 4, 2}};
    QVERIFY(GraphFolder::ensure());
    QVERIFY(GraphFile::write(GraphFolder::fileFor(QStringLiteral("other")), other));

    QPointer<frmGraphs> window = new frmGraphs;
    window->show();
    // Nothing typed yet: nothing to lose, so no question.
    if (button != QLatin1String("cmdBuildDone")) {
        answerFileDialogs(QString(), QStringLiteral("other"));
        window->findChild<QPushButton *>(button)->click();
        QVERIFY(m_env->dialogs.messages.isEmpty());
        window->showGraph(Graph());
        window->cmdNewGraph->click();
    }
    typeRow(*window, 0, QStringLiteral("Dogs"), QStringLiteral("7"));
    QVERIFY(window->isUnsaved());

    answerFileDialogs(QStringLiteral("mine"), QStringLiteral("other"));
    m_env->dialogs.answers = {QMessageBox::StandardButton(answer)};
    window->findChild<QPushButton *>(button)->click();
    QCoreApplication::processEvents();

    QCOMPARE(m_env->dialogs.messages.size(), 1);
    const MessageRequest asked = m_env->dialogs.messages.first();
    QCOMPARE(asked.title, title);
    QCOMPARE(asked.text, question);
    QCOMPARE(asked.icon, QMessageBox::Question);
    QCOMPARE(asked.buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);

    const bool saved = QFile::exists(GraphFolder::fileFor(QStringLiteral("mine")));
    QCOMPARE(saved, answer == QMessageBox::Yes);
    if (saved) {
        const auto back = GraphFile::read(GraphFolder::fileFor(QStringLiteral("mine")));
        QVERIFY(back);
        QCOMPARE(back->points.value(0).label, QStringLiteral("Dogs"));
    }
    if (answer == QMessageBox::Cancel) {
        QVERIFY(window);
        QCOMPARE(window->txtXLabel[0]->text(), QStringLiteral("Dogs"));
        QVERIFY(window->isUnsaved());
        window->showGraph(Graph());
        delete window;
        return;
    }
    if (button == QLatin1String("cmdBuildDone")) {
        QVERIFY(window.isNull()); // closed and deleted: back to the menu
        return;
    }
    QVERIFY(window);
    QVERIFY(!window->isUnsaved());
    if (button == QLatin1String("cmdOpenGraph")) {
        QCOMPARE(window->txtTitle->text(), QStringLiteral("Other graph"));
        QCOMPARE(window->windowTitle(), QStringLiteral("Graphs & Charts - other"));
    } else {
        QVERIFY(window->txtXLabel[0]->text().isEmpty());
        QVERIFY(window->txtYValue[0]->text().isEmpty());
    }
    if (button == QLatin1String("cmdNewGraph"))
        QCOMPARE(window->fileName(), QStringLiteral("NEW"));
    delete window;
}

void tst_frmgraphs::saveAsksBeforeOverwriting()
{
    frmGraphs window;
    window.show();
    typeRow(window, 0, QStringLiteral("Cats"), QStringLiteral("3"));
    answerFileDialogs(QStringLiteral("pets.tsg"));
    window.cmdSaveGraph->click();
    QVERIFY(m_env->dialogs.messages.isEmpty()); // a new name: no question
    QCOMPARE(window.windowTitle(), QStringLiteral("Graphs & Charts - pets"));
    QVERIFY(!window.isUnsaved());

    typeRow(window, 1, QStringLiteral("Fish"), QStringLiteral("2"));
    m_env->dialogs.answers = {QMessageBox::No};
    window.cmdSaveGraph->click();
    QCOMPARE(m_env->dialogs.messages.size(), 1);
    const MessageRequest asked = m_env->dialogs.messages.first();
    QCOMPARE(asked.title, QStringLiteral("Graph/Chart Already Exists"));
    QCOMPARE(asked.text, QStringLiteral("Overwrite existing graph/chart?"));
    QCOMPARE(asked.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(asked.defaultButton, QMessageBox::No);
    QCOMPARE(GraphFile::read(GraphFolder::fileFor(QStringLiteral("pets")))->points.size(), 1);
    QVERIFY(window.isUnsaved());

    m_env->dialogs.answers = {QMessageBox::Yes};
    window.cmdSaveGraph->click();
    QCOMPARE(GraphFile::read(GraphFolder::fileFor(QStringLiteral("pets")))->points.size(), 2);
    QVERIFY(!window.isUnsaved());

    // A name that cannot be a file is refused with a word of help, and nothing is written.
    answerFileDialogs(QStringLiteral("a/b"));
    window.cmdSaveGraph->click();
    QCOMPARE(m_env->dialogs.messages.last().title, QStringLiteral("Save Graph/Chart"));
    QCOMPARE(GraphFolder::names(), QStringList{QStringLiteral("pets")});

    // The name window itself: typing a name and pressing Enter chooses it.
    frmGraphFile names(frmGraphFile::Save, GraphFolder::names(), QStringLiteral("pets"));
    names.show();
    QCOMPARE(names.chosenName(), QStringLiteral("pets"));
    QTest::keyClicks(names.cboFiles->lineEdit(), QStringLiteral("birds"));
    QTest::keyClick(names.cboFiles->lineEdit(), Qt::Key_Return);
    QCOMPARE(names.result(), int(QDialog::Accepted));
    QCOMPARE(names.chosenName(), QStringLiteral("birds"));
}

void tst_frmgraphs::failedSaveAndOpenChangeNothing()
{
    frmGraphs window;
    window.show();
    typeRow(window, 0, QStringLiteral("Rain"), QStringLiteral("5"));

    // The graph folder cannot be made where a file stands.
    QFile blocker(m_folder->filePath(QStringLiteral("Graphs")));
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    answerFileDialogs(QStringLiteral("weather"));
    window.cmdSaveGraph->click();
    QCOMPARE(m_env->dialogs.messages.last().text, QStringLiteral("Error Saving Graph/Chart"));
    QCOMPARE(m_env->dialogs.messages.last().icon, QMessageBox::Critical);
    QCOMPARE(window.fileName(), QStringLiteral("NEW"));
    QVERIFY(window.isUnsaved());
    QVERIFY(blocker.remove());

    QVERIFY(GraphFolder::ensure());
    QFile damaged(GraphFolder::fileFor(QStringLiteral("broken")));
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write("1\n\"T\"\n\"X\"\n\"Y\"\n0,0,10,10\n13\n");
    damaged.close();
    const Graph before = window.graphFromControls();
    m_env->dialogs.answers = {QMessageBox::No};
    answerFileDialogs(QString(), QStringLiteral("broken"));
    window.cmdOpenGraph->click();
    QCOMPARE(m_env->dialogs.messages.last().title, QStringLiteral("Open Graph/Chart"));
    QCOMPARE(m_env->dialogs.messages.last().text, QStringLiteral("Error Opening Graph/Chart"));
    QCOMPARE(window.graphFromControls(), before);
    QCOMPARE(window.windowTitle(), QStringLiteral("Graphs & Charts"));
    window.showGraph(Graph());
    window.cmdNewGraph->click();
}

void tst_frmgraphs::scaleAndDataChecks()
{
    frmGraphs window;
    window.show();
    window.goToStep(2);
    window.txtYMin->setText(QStringLiteral("5"));
    window.txtYmax->setText(QStringLiteral("5"));
    window.cmdFormatOK->click();
    QCOMPARE(m_env->dialogs.messages.size(), 1);
    QCOMPARE(m_env->dialogs.messages[0].title, QStringLiteral("Scale Error"));
    QCOMPARE(m_env->dialogs.messages[0].text,
             QStringLiteral("Minimum must be smaller than Maximum."));
    QCOMPARE(m_env->dialogs.messages[0].icon, QMessageBox::Critical);
    QCOMPARE(window.formatStep(), 2);

    window.txtYMin->setText(QStringLiteral("0"));
    window.txtYDiv->setText(QStringLiteral("0"));
    window.cmdFormatOK->click();
    QCOMPARE(window.txtYDiv->text(), QStringLiteral("1"));
    QCOMPARE(window.formatStep(), 3);

    typeRow(window, 0, QStringLiteral("Mon"), QStringLiteral("4"));
    window.cmdFormatOK->click();
    QCOMPARE(window.picGraph->graph().points.size(), 1);
    typeRow(window, 1, QStringLiteral("Tue"), QStringLiteral("12"));
    window.cmdFormatOK->click();
    QCOMPARE(m_env->dialogs.messages.last().title, QStringLiteral("Data Range Error"));
    QCOMPARE(m_env->dialogs.messages.last().text,
             QStringLiteral("Maximum Data Value =12\nAdjust Maximum on Scale"));
    // The chart keeps the last graph that could be drawn: 1, typed on the way to 12.
    QCOMPARE(window.picGraph->graph().points.last().value, 1.0f);
    QVERIFY(window.lblDataHint->isVisibleTo(&window));
    window.showGraph(Graph());
}

void tst_frmgraphs::numberBoxesAndKeys()
{
    frmGraphs window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.goToStep(3);
    window.txtYValue[0]->setFocus();
    QTest::keyClicks(window.txtYValue[0], QStringLiteral("1a2.3.-4"));
    QCOMPARE(window.txtYValue[0]->text(), QStringLiteral("12.34"));
    QCOMPARE(m_env->sound.beeps(), 3);
    window.txtYValue[1]->setFocus();
    QTest::keyClicks(window.txtYValue[1], QStringLiteral("-5"));
    QCOMPARE(window.txtYValue[1]->text(), QStringLiteral("-5"));
    window.goToStep(2);
    window.txtYDiv->setFocus();
    window.txtYDiv->selectAll();
    QTest::keyClicks(window.txtYDiv, QStringLiteral("-7.5"));
    QCOMPARE(window.txtYDiv->text(), QStringLiteral("75"));

    // Rows work like a table: Enter from a label to its value, then to the next row.
    window.goToStep(3);
    window.txtXLabel[2]->setFocus();
    QTest::keyClick(window.txtXLabel[2], Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), window.txtYValue[2]);
    QTest::keyClick(window.txtYValue[2], Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), window.txtXLabel[3]);
    QTest::keyClick(window.txtXLabel[3], Qt::Key_Up);
    QCOMPARE(QApplication::focusWidget(), window.txtXLabel[2]);
    // In a small window the rows scroll, and the arrows keep the focused row in sight.
    window.resize(window.minimumSizeHint());
    QCoreApplication::processEvents();
    for (int i = 2; i < Graph::MaxPoints - 1; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), window.txtXLabel[Graph::MaxPoints - 1]);
    QVERIFY(!window.txtXLabel[Graph::MaxPoints - 1]->visibleRegion().isEmpty());
    QVERIFY(window.txtXLabel[0]->visibleRegion().isEmpty());
    // Enter on a kind or in a title box goes on to the next step.
    window.goToStep(0);
    window.optType[1]->setFocus();
    QTest::keyClick(window.optType[1], Qt::Key_Return);
    QCOMPARE(window.formatStep(), 1);
    // The captions show plain text and still take the focus to their box by their mnemonic.
    QTest::keyClick(&window, Qt::Key_Z, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), window.txtXTitle);
    QTest::keyClick(window.txtTitle, Qt::Key_Return);
    QCOMPARE(window.formatStep(), 2);
    window.showGraph(Graph());
}

void tst_frmgraphs::colourFromThePaintBox()
{
    frmGraphs window;
    window.show();
    typeRow(window, 0, QStringLiteral("Red"), QStringLiteral("1"));
    typeRow(window, 1, QStringLiteral("Purple"), QStringLiteral("2"));
    window.lblColor[1]->click();
    window.lblColorChoice[5]->click();
    const Graph graph = window.graphFromControls();
    QCOMPARE(graph.points[0].colour, Graph::defaultColour(0));
    QCOMPARE(graph.points[1].colour, qint16(5));
    QCOMPARE(window.picGraph->graph().points[1].colour, qint16(5));
    // From the keyboard: the arrows step through the colours of the focused row's box.
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.lblColor[0]->setFocus();
    QTest::keyClick(window.lblColor[0], Qt::Key_Left);
    QCOMPARE(window.graphFromControls().points[0].colour, qint16(Graph::Colours - 1));
    QTest::keyClick(window.lblColor[0], Qt::Key_Right);
    QTest::keyClick(window.lblColor[0], Qt::Key_Right);
    QCOMPARE(window.graphFromControls().points[0].colour, qint16(1));
    window.showGraph(Graph());
}

void tst_frmgraphs::printsALandscapePage()
{
    QTemporaryDir pdfs;
    m_env->dialogs.pdfFolder = pdfs.path();
    frmGraphs window;
    window.show();
    window.cmdPrint->click(); // nothing to print yet
    QCOMPARE(m_env->dialogs.messages.size(), 1);
    QVERIFY(m_env->dialogs.printed.isEmpty());
    typeRow(window, 0, QStringLiteral("Walk"), QStringLiteral("8"));
    window.optType[Graph::PieChart]->click();
    window.cmdPrint->click();
    QCOMPARE(m_env->dialogs.printed, QStringList{QStringLiteral("Graphs & Charts")});
    QCOMPARE(m_env->dialogs.pdfFiles.size(), 1);
    QVERIFY(QFileInfo(m_env->dialogs.pdfFiles.first()).size() > 1000);

    // The chart and its table share one landscape page.
    const PrintDocument paper =
        GraphPaper::document(window.graphFromControls(), QStringLiteral("w"));
    QVERIFY(paper.landscape());
    QCOMPARE(paper.title(), QStringLiteral("Graphs & Charts - w"));
    const auto pages = paper.layOut();
    QCOMPARE(pages.size(), 1);
    for (const auto &item : pages.first())
        QVERIFY(item.y + item.height <= paper.bottom());

    // A chart that cannot be drawn is not printed.
    window.optType[Graph::BarChart]->click();
    window.goToStep(3);
    window.txtYValue[0]->setText(QStringLiteral("80"));
    window.cmdPrint->click();
    QCOMPARE(m_env->dialogs.printed.size(), 1);
    QCOMPARE(m_env->dialogs.messages.last().title, QStringLiteral("Data Range Error"));
    window.showGraph(Graph());
}

void tst_frmgraphs::lessonRunsToItsEnd()
{
    frmGraphs window;
    window.show();
    typeRow(window, 0, QStringLiteral("Mine"), QStringLiteral("6"));
    const Graph own = window.graphFromControls();

    window.cmdLearn->click();
    QVERIFY(window.inLesson());
    QVERIFY(window.fraLearn->isVisible());
    QCOMPARE(window.windowTitle(), QStringLiteral("Graphs & Charts - line.tsx"));
    QCOMPARE(window.txtTitle->text(), QStringLiteral("Riverton Rockets Attendance"));
    for (QPushButton *off : {window.cmdNewGraph, window.cmdOpenGraph, window.cmdSaveGraph,
                             window.cmdClear, window.cmdPrint, window.cmdLearn})
        QVERIFY(!off->isEnabled());

    const auto steps = Lesson::steps();
    QStringList captions;
    for (int i = 0; i < steps.size(); ++i) {
        QCOMPARE(window.lessonStep(), i);
        const int allowed = steps[i].controls;
        QCOMPARE(window.txtLearn->toPlainText(), steps[i].text);
        QCOMPARE(window.formatStep(), steps[i].page);
        QCOMPARE(window.optType[0]->isEnabled(), bool(allowed & Lesson::Type));
        QCOMPARE(window.txtTitle->isEnabled(), bool(allowed & Lesson::Titles));
        QCOMPARE(window.txtYmax->isEnabled(), bool(allowed & Lesson::Scale));
        QCOMPARE(window.txtYValue[0]->isEnabled(), bool(allowed & Lesson::Data));
        QCOMPARE(window.chkPiePercent->isEnabled(), bool(allowed & Lesson::PiePercent));
        QCOMPARE(window.lblColorChoice[0]->isEnabled(),
                 bool(allowed & (Lesson::Data | Lesson::Colours)));
        captions.append(window.windowTitle());
        QCOMPARE(window.cmdChange->isEnabled(), i + 1 < steps.size());
        if (i == 5) {
            // The pupil does what the step asks: 2024 becomes 55, and the chart follows.
            window.txtYValue[7]->setText(QString());
            QTest::keyClicks(window.txtYValue[7], QStringLiteral("55"));
            window.cmdFormatOK->click();
            QCOMPARE(window.picGraph->graph().points[7].value, 55.0f);
        }
        window.cmdChange->click();
    }
    captions.removeDuplicates();
    QCOMPARE(captions.size(), Lesson::files().size());
    QVERIFY(m_env->dialogs.messages.isEmpty());

    window.cmdStopLearn->click();
    QVERIFY(!window.inLesson());
    QVERIFY(!window.fraLearn->isVisible());
    QCOMPARE(window.graphFromControls(), own);
    QVERIFY(window.isUnsaved());
    QCOMPARE(window.windowTitle(), QStringLiteral("Graphs & Charts"));
    QVERIFY(window.cmdSaveGraph->isEnabled() && window.txtYValue[0]->isEnabled());
    window.showGraph(Graph());
    window.cmdNewGraph->click();
    m_env->dialogs.answers = {QMessageBox::No};
}

QTEST_MAIN(tst_frmgraphs)
#include "tst_frmgraphs.moc"
