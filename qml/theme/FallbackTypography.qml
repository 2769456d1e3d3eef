pragma Singleton

/// What a component uses before it is handed a type scale.
Typography {}
