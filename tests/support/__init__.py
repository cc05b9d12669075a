"""What the tests of the compiler share."""
