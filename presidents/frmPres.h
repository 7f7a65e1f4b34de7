// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Presidents.h"

#include "quiz/widgets/QuizWindow.h"

#include <QList>

class PictureBox;
class QGroupBox;
class QLabel;

// US Presidents: browse the presidents in order with their portraits and facts, name a
// president from clues, or name the one missing from a row of three.
class frmPres : public QuizWindow {
    Q_OBJECT
public:
    explicit frmPres(QWidget *parent = nullptr);
    ~frmPres() override;

    // For the tests and the screenshot tool.
    const QuizTable &presidents() const { return m_table; }
    const Presidents::WhoIsMissing &whoIsMissing() const { return m_who; }

    PictureBox *imgPres;
    QLabel *lblNumber;
    QLabel *lblDate;
    QLabel *lblPlace;
    QLabel *lblTerm;
    QLabel *lblParty;
    QList<QGroupBox *> fraWho; // 1..3 at indices 0..2
    QList<QLabel *> lblWho;
    QList<PictureBox *> imgWho;
    QList<QLabel *> lblWTerm;
    QList<QLabel *> lblWNum;

protected:
    void fitType() override;

private:
    void buildControls();
    double typeFactor() const;

    bool multipleChoice() const;
    void showWhoRow();
    void styleName(QLabel *name, bool missing);
    void showAllItems();

    QString modeTitle(int mode) const override;
    QuizPlan planFor(int mode) const override;
    QString cannotStart(const QString &error) const override;
    void clearItems() override;
    void showIdlePictures() override;
    void showReview() override;
    void showItem(int item) override;
    void prepareQuestion(bool newQuestion) override;
    void askQuestion() override;
    QString showHint() override;
    void showAnswer() override;
    bool choicesOffered() const override;

    Presidents::WhoIsMissing m_who;
};
