.pragma library

// The libraries that a seat's column can show.

const standard = 0
const population = 1
const custom = 2
const count = 3
