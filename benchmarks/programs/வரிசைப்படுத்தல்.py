# Sorting: Shell sort written by hand
count = 40000
seed = 12345
numbers = []
for index in range(count):
    seed = (seed * 1103515245 + 12345) % 2147483648
    numbers.append(seed % 100000)

gap = count // 2
while gap > 0:
    for index in range(gap, count):
        held = numbers[index]
        place = index + 0
        while place >= gap and numbers[place - gap] > held:
            numbers[place] = numbers[place - gap]
            place = place - gap
        numbers[place] = held
    gap = gap // 2

signature = 0
for element in numbers:
    signature = (signature * 31 + element) % 1000003
print(f"{numbers[0]} {numbers[20000]} {numbers[39999]} {signature}")
