.pragma library

/// A generator of numbers from 0 on and below 1, the same ones for the same seed (mulberry32).
function seeded(seed) {
    let state = seed >>> 0
    return () => {
        state = (state + 0x6D2B79F5) >>> 0
        let mixed = Math.imul(state ^ (state >>> 15), state | 1)
        mixed = (mixed + Math.imul(mixed ^ (mixed >>> 7), mixed | 61)) ^ mixed
        return ((mixed ^ (mixed >>> 14)) >>> 0) / 4294967296
    }
}
