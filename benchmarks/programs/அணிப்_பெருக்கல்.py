# Matrix product: lists of rows; a row is taken into a variable, then its elements are read
size = 120
left = []
right_transposed = []
for row in range(size):
    left_row = []
    right_row = []
    for place in range(size):
        left_row.append((row * 7 + place * 3) % 101)
        right_row.append((row * 5 + place * 11) % 103)
    left.append(left_row)
    right_transposed.append(right_row)

result = []
for row in range(size):
    left_row = left[row]
    result_row = []
    for column in range(size):
        right_row = right_transposed[column]
        total = 0
        for place in range(size):
            total = total + left_row[place] * right_row[place]
        result_row.append(total)
    result.append(result_row)
print(f"{result[0][0]} {result[17][31]} {result[119][119]}")
