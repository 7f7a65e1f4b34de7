2
"How Maya Spends Her Saturday"
"Activity"
"Hours"
0,0,10,10
6
"Sleeping",10,10
"Playing",5,3
"Sports",4,4
"Eating",2,2
"Reading",2,5
"Chores",1,7
1
