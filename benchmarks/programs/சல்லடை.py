# Sieve: the sieve of Eratosthenes; appending, reading and writing by index
limit = 800000
is_prime = []
for number in range(limit + 1):
    is_prime.append(number > 1)

count = 0
last = 0
for number in range(2, limit + 1):
    if is_prime[number]:
        count += 1
        last = number
        multiple = number * number
        while multiple <= limit:
            is_prime[multiple] = False
            multiple = multiple + number

print(f"{count} பகா எண்கள், கடைசி {last}")
