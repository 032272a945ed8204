list = []
for i in range(1, 1000001):
    list.append(i)
s = 0
for i in range(1000000):
    s = s + list[i]
print(s)
