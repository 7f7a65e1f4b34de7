2
"How We Get to School"
"Way to school"
"Children"
0,0,10,10
4
"Walk",8,3
"Bus",10,2
"Car",6,0
"Bike",4,1
0
