# Lambdas: calling functions held in variables and in a list
add = lambda left, right: left + right
reduce = lambda value: (value * 31 + 7) % 1000003
is_even = lambda value: value % 2 == 0
steps = [lambda a: a + 1, lambda a: a * 3, lambda a: a % 10007]

result = 1
count = 0
for number in range(200000):
    result = reduce(add(result, number))
    if is_even(result) == True:
        count += 1
    for step in steps:
        result = step(result)
print(f"{result} {count}")
