// Nothing: the headers that the tests share belong to a target, and a target needs a source.
