"""Names of files that programs get wrong."""

NAMES = [
    b"new\nline",
    b"it's \"quoted\" `too` \\",
    b"-rf --",
    b"$(touch pwned) ${HOME} ;&|*?",
    b"100%s%n%20#?",
    b"not \xff utf-8 \xed\xa0\x80",
    b"x" * 255,
]
