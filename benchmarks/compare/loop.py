s = 0
i = 0
while i < 10000000:
    s = s + i
    i = i + 1
print(s)
