# Objects: making them, reading and writing properties, calling methods
class Account:
    def __init__(self, amount):
        self.balance = 0
        self.deposits = 0
        self.balance = amount

    def deposit(self, amount):
        self.balance = (self.balance + amount) % 1000003
        self.deposits = self.deposits + 1

    def state(self):
        return self.balance


total = 0
for number in range(8000):
    daily = Account(number)
    for amount in range(50):
        daily.deposit(amount * number)
    total = (total + daily.state()) % 1000003
print(f"{total} {daily.deposits}")
