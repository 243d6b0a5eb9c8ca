// For targets that need a source of their own although their content comes from elsewhere.
