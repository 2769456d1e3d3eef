.pragma library

// The pages by their place in the shell.

const home = 0
const setup = 1
const solve = 2
const results = 3
const settings = 4
