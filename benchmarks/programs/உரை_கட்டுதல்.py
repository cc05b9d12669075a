# Text building: appending piece by piece, splitting, replacing
signature = 0
for turn in range(200):
    text = ""
    for number in range(2000):
        text = text + str(number) + ", "
    pieces = text.replace(", ", "-").split("-")
    for piece in pieces:
        signature = (signature * 7 + len(piece)) % 1000003
print(f"{len(text)} {signature}")
