.pragma library

// Reads the status texts of a running solve, and scales its progress wheel.

/// The iteration after which the exploitability is measured for the first time.
const firstMeasure = 50

const _number = "([-+]?(?:\\d+\\.?\\d*|\\.\\d+)(?:e[-+]?\\d+)?|inf(?:inity)?|nan)"

/// True for the texts after the last iteration, while the result is being built.
function isFinalizingText(statusText) {
    return statusText.startsWith("Finalizing:")
}

/// The iteration of a status text, 0 if it has none.
function parseIterationFromStatusText(statusText) {
    const match = /Iter\s+(\d+)/.exec(statusText)
    return match ? Number(match[1]) : 0
}

/// The exploitability of a status text in chips, or undefined.
function parseExploitabilityFromStatusText(statusText) {
    const match = new RegExp("exploitability≈\\s*" + _number, "i").exec(statusText)
    const value = match ? Number(match[1]) : NaN
    return isFinite(value) ? value : undefined
}

/// {iteration, value} as texts for a status text of the form "Iter 7 | exploitability≈0.5", also
/// with an equals sign; undefined for any other.
function parseIterationLine(statusText) {
    const match = /^Iter\s+(\d+)\s.*exploitability\s*[=≈]\s*(\S+)/.exec(statusText)
    return match ? { iteration: match[1], value: match[2] } : undefined
}

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
