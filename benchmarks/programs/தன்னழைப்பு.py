# Recursion: a function that calls itself twice
def fibonacci(place):
    if place < 2:
        return place
    return fibonacci(place - 1) + fibonacci(place - 2)


print(f"பிபனாச்சி(30) = {fibonacci(30)}")
