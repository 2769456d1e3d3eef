pragma Singleton

/// What a component shows before it is handed a theme: the dark tokens.
Theme {}
