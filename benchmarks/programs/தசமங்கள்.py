# Decimals: a small picture of the Mandelbrot set, and a series
width = 140
height = 90
total = 0
for row in range(height):
    for column in range(width):
        real = column / 56.0 + -(2.0)
        imaginary = row / 45.0 + -(1.0)
        a = 0.0
        b = 0.0
        square_a = 0.0
        square_b = 0.0
        turns = 0
        while turns < 60 and square_a + square_b <= 4.0:
            b = 2.0 * a * b + imaginary
            a = square_a - square_b + real
            square_a = a * a
            square_b = b * b
            turns += 1
        total = total + turns
pi = 0.0
sign = 4.0
for number in range(200000):
    pi = pi + sign / (2 * number + 1)
    sign = 0.0 - sign
print(f"{total} {pi:.6f}")
