.pragma library

// How the Solve page shows the figures of a run.

/// The exploitability of a run is shown from the iteration after this one on, its first measure.
const firstMeasure = 50

/// The iteration at which the wheel is full: a solve stops early at its target, the sooner the
/// higher it is. `target` is in percent of the pot.
function progressWheelTotalIterations(target, maxIterations) {
    const limit = Math.max(1, maxIterations)
    if (!isFinite(target) || target <= 0)
        return limit
    if (target >= 1.0)
        return Math.min(limit, 150)
    if (target >= 0.5)
        return Math.min(limit, 200)
    if (target >= 0.1)
        return Math.min(limit, 300)
    return limit
}

/// Place 1..size in a window that starts again after `size` iterations.
function iterationWindowValue(iteration, size) {
    return iteration > 0 ? (iteration - 1) % size + 1 : 0
}

/// "∞" before the first measure at iteration 50, then two decimals, or "—" for no value.
function formatExploitabilityForUi(iteration, value) {
    if (iteration >= 1 && iteration <= firstMeasure)
        return "∞"
    return value === undefined || !isFinite(value) ? "—" : value.toFixed(2)
}

/// MM:SS of a number of seconds; minutes go on past 99.
function formatMinutesSeconds(seconds) {
    const whole = Math.max(0, Math.round(seconds))
    const pad = part => String(part).padStart(2, "0")
    return pad(Math.floor(whole / 60)) + ":" + pad(whole % 60)
}

/// The keys of the thread box: "Max", then powers of two up to `threads`, and `threads` itself.
function threadChoices(threads) {
    const numbers = [1, 2, 4, 8, 16, 32, 64, 128].filter(count => count <= threads)
    if (!numbers.includes(threads))
        numbers.push(threads)
    return ["Max"].concat(numbers.sort((a, b) => a - b).map(String))
}

/// `threadCount` where the machine has that many, else all of them.
function validThreadCount(threadCount, threads) {
    return isFinite(threadCount) && threadCount >= 1 && threadCount <= threads ? threadCount : threads
}
