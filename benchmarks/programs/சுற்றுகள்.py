# Loops: lengths of Collatz sequences; subtraction, multiplication, remainder, comparison of integers
longest = 0
start = 0
signature = 0

for first in range(1, 20000):
    value = first + 0
    steps = 0
    while value != 1:
        if value % 2 == 0:
            value = value // 2
        else:
            value = value * 3 + 1
        steps += 1
    if steps > longest:
        longest = steps
        start = first
    signature = (signature * 31 + steps) % 1000003

print(f"தொடக்கம்: {start}, படிகள்: {longest}, கையொப்பம்: {signature}")
