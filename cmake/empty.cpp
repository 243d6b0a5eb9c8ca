// A shared library needs a source of its own; everything else comes from the static one.
