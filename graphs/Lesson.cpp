// SPDX-License-Identifier: GPL-3.0-or-later
#include "Lesson.h"

QList<Lesson::Step> Lesson::steps()
{
    const QString line = QStringLiteral("line.tsx");
    const QString bar1 = QStringLiteral("bar1.tsx");
    const QString bar2 = QStringLiteral("bar2.tsx");
    const QString pie1 = QStringLiteral("pie1.tsx");
    const QString pie2 = QStringLiteral("pie2.tsx");
    return {
        {line, KindPage, None,
         tr("Welcome to the graph lesson! A graph turns a list of numbers into a picture, so you "
            "can see at a glance what the numbers say.\n\nThis line graph shows how many fans "
            "came to watch the Riverton Rockets, our town's baseball team, each year.\n\nPress "
            "Next whenever you are ready to go on.")},
        {{},
         TitlesPage,
         Titles,
         tr("The title at the top tells what the graph is about.\n\nThe words along the bottom "
            "(Year) and up the side (Fans, in thousands) are the axis titles. They tell what each "
            "direction means. You can see all three titles in the Titles step on the right.")},
        {{},
         ScalePage,
         Grid,
         tr("The numbers up the side are the scale. Here they go from 0 to 60 in 6 steps of "
            "10.\n\nThe grid lines help your eye travel across from a dot to its number. Try "
            "it: click Grid Lines to turn them off, and again to turn them back on.")},
        {{},
         DataPage,
         None,
         tr("Each dot is one year. Find 2019: its dot is a little below the line for 30, so "
            "about 27 thousand fans came that year. The Data step on the right shows the exact "
            "numbers.\n\nThe lines between the dots show the number going up or going down.")},
        {{},
         DataPage,
         None,
         tr("A line graph is best for showing how something changes over time.\n\nDid more "
            "fans come in 2024 than in 2017? Yes: 47 thousand against 18 thousand!\n\nCan you "
            "find the one year when fewer fans came than the year before? Look for the line "
            "going down, then press Next.")},
        {{},
         DataPage,
         Data | Draw,
         tr("It was 2020: the line goes down from 27 to 24.\n\nNow you try! In the Data step, "
            "change the number for 2024 to 55. Then press Draw and watch the last dot "
            "climb.")},
        {{},
         KindPage,
         Type,
         tr("The same numbers can make other kinds of graph. Click Bar Chart in the Kind step, "
            "and each year becomes a bar. Click Line Graph to go back.\n\nNext, we look at bar "
            "charts.")},
        {bar1, KindPage, None,
         tr("This is a bar chart. Mrs. Lopez's class voted for their favorite fruit. Each bar "
            "is one fruit: the taller the bar, the more votes it got.\n\nBar charts are best for "
            "comparing groups.")},
        {{},
         ScalePage,
         None,
         tr("To read a bar, go to its top and then straight across to the scale. Apples got 7 "
            "votes.\n\nWhich fruit got the fewest votes? Find the shortest bar, then press "
            "Next.")},
        {{},
         DataPage,
         Colours | Draw,
         tr("Oranges got the fewest, with 3 votes.\n\nYou can choose the colour of every bar. "
            "Click the colour box at the start of a row, then click a colour in the paint box "
            "under the rows. Give the grapes a purple bar, then press Draw.")},
        {bar2, ScalePage, None,
         tr("Our school collected cans of food for the food bank. This chart shows how many "
            "cans each grade brought.\n\nLook at the scale: it goes from 0 to 100, and each line "
            "is 10 more than the one under it.")},
        {{},
         DataPage,
         None,
         tr("Grade 3 brought 85 cans: the top of its bar is halfway between 80 and 90.\n\nHow "
            "many more cans did Grade 5 bring than Grade 1? 95 take away 45 is 50 more "
            "cans!")},
        {{},
         DataPage,
         Data | Scale | Draw,
         tr("A number bigger than the top of the scale will not fit. Try it: change Grade 5 to "
            "120 and press Draw. The program tells you to change the scale.\n\nThen make the "
            "Maximum 150 in the Scale step, make the Divisions 15, and press Draw again.")},
        {pie1, KindPage, None,
         tr("This is a pie chart. A pie chart shows how one whole thing is cut into parts.\n\n"
            "The whole circle is Maya's Saturday: all 24 hours of it. Each slice is the time she "
            "spent doing one thing.")},
        {{},
         DataPage,
         PiePercent,
         tr("The biggest slice is Sleeping: 10 hours.\n\nShow Percentages writes on each slice "
            "how much of the whole it is, out of 100. All the slices together always make 100 "
            "percent. Try turning Show Percentages off and on.")},
        {pie2, DataPage, None,
         tr("How does our class get to school? This pie chart shows the 28 children.\n\nEven "
            "without numbers you can compare the slices. Which way to school is the most "
            "popular? Press Next to check.")},
        {{},
         DataPage,
         PiePercent,
         tr("The bus! 10 of the 28 children ride it.\n\nTurn on Show Percentages: 10 out of 28 "
            "is about 36 out of every 100 children, so the bus slice says 36%.")},
        {{},
         DataPage,
         Titles | Data | Colours | PiePercent | Draw,
         tr("Now make the pie chart your own. Change the labels, the numbers or the colours, "
            "or add a row for scooters, and press Draw to see your chart.")},
        {{},
         KindPage,
         None,
         tr("Well done! You have read and built line graphs, bar charts and pie charts.\n\n"
            "Press Stop Lesson to go back to your own graph, and make a graph about something you "
            "like: pets, weather, games or sports!")},
    };
}

QStringList Lesson::files()
{
    return {QStringLiteral("line.tsx"), QStringLiteral("bar1.tsx"), QStringLiteral("bar2.tsx"),
            QStringLiteral("pie1.tsx"), QStringLiteral("pie2.tsx")};
}
