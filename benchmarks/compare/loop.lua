s = 0
i = 0
while i < 10000000 do
    s = s + i
    i = i + 1
end
print(s)
