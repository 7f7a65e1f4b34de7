1
"Our Class's Favorite Fruit"
"Fruit"
"Votes"
1,0,10,10
5
"Apples",7,0
"Bananas",5,2
"Grapes",4,3
"Oranges",3,4
"Strawberries",6,8
0
