"""What the generator knows of names: which variables there are, of which kinds, and who may assign them."""

WORDS = (
    "அளவை எடை உயரம் விலை எல்லை மொத்தம் கூடை பழம் மரம் கிளை இலை வேர் நிலம் மழை காற்று கடல் மலை ஆறு "
    "ஊர் தெரு வீடு கதவு சாவி பெட்டகம் நூல் பாடல் கதை சொல் பொருள்கள் நாள்"
).split()


class Function:
    """How a function is called: `parameters` are pairs of kind and whether the parameter changes its argument."""

    def __init__(self, name, parameters, result):
        self.name, self.parameters, self.result = name, parameters, result


class Structure:
    def __init__(self, name, parent, fields, methods, start):
        self.name, self.parent = name, parent
        self.fields, self.methods, self.start = fields, methods, start


class Scope:
    """Variables of the file or of one function; `outer` is the scope around."""

    def __init__(self, outer=None, of_file=False):
        self.outer, self.of_file = outer, of_file
        self.kinds = {}
        self.public = set()
        self.frozen = set()
        self.used = set()
        self.used_within = set()
        self.result = None
        self.loops = 0

    def readable(self, kinds):
        """Names of variables of one of the kinds, own and around."""
        names, scope = {}, self
        while scope is not None:
            for name, kind in scope.kinds.items():
                names.setdefault(name, kind)
            scope = scope.outer
        return sorted(name for name, kind in names.items() if kind in kinds)

    def assignable(self, kind):
        """Names of variables of this kind that a statement here may change."""
        result, hidden, scope = [], set(), self
        while scope is not None:
            for name, its in scope.kinds.items():
                if name in hidden:
                    continue
                hidden.add(name)
                if its == kind and name not in scope.frozen and self.may_change(scope, name):
                    result.append(name)
            scope = scope.outer
        return sorted(result)

    def may_change(self, owner, name):
        return not owner.of_file or owner is self or name in self.public

    def kind_of(self, name):
        scope = self
        while scope is not None:
            if name in scope.kinds:
                return scope.kinds[name]
            scope = scope.outer
        return None

    def around(self):
        """The scopes of the functions around, from within."""
        scope = self.outer
        while scope is not None:
            yield scope
            scope = scope.outer

    def fresh(self, random, prefix="", for_function=False):
        """A name that no variable here or around has; for a function none within either, since nothing assigns those."""
        taken = set().union(self.used, *(scope.used for scope in self.around()))
        if for_function:
            taken |= self.used_within
        name = None
        while name is None or name in taken:
            name = prefix + random.choice(WORDS) + random.choice(["", "", "1", "2", "_அ"])
        self.used.add(name)
        for scope in self.around():
            scope.used_within.add(name)
        return name
