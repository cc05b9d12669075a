# Map counting
seed = 7
occurrences = {}
for number in range(500):
    occurrences["சொல்" + str(number)] = 0

for number in range(400000):
    seed = (seed * 1103515245 + 12345) % 2147483648
    word = "சொல்" + str(seed // 65536 % 500)
    occurrences[word] = occurrences[word] + 1

most = 0
for word in occurrences:
    if occurrences[word] > most:
        most = occurrences[word]
print(f"{len(occurrences)} {most} {occurrences['சொல்0']} {occurrences['சொல்499']}")
