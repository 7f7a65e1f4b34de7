1
"Cans Collected for the Food Bank"
"Grade"
"Cans"
1,0,100,10
5
"Grade 1",45,6
"Grade 2",60,3
"Grade 3",85,4
"Grade 4",70,5
"Grade 5",95,0
0
