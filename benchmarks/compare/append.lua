s = ""
for i = 1, 200000 do
    s = s .. "ab"
end
print(#s)
