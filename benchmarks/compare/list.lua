list = {}
for i = 1, 1000000 do
    list[#list + 1] = i
end
s = 0
for i = 1, 1000000 do
    s = s + list[i]
end
print(s)
