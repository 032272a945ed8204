s = ""
for i in range(200000):
    s = s + "ab"
print(len(s))
