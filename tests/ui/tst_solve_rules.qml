import QtQuick
import QtTest
import Velmora
import "../../qml/components/file_url.js" as FileUrl
import "../../qml/components/number_text.js" as NumberText
import "../../qml/shell/project_keys.js" as ProjectKeys
import "../../qml/shell/presets.js" as Presets
import "../../qml/setup/settings_profiles.js" as SettingsProfiles
import "../../qml/shell/solve_gate.js" as SolveGate
import "../../qml/solve/solve_status.js" as SolveStatus

TestCase {
    name: "SolveRules"

    SolveFollower {
        id: follower

        maxIterations: 1000
        targetExploitability: 0
    }

    function test_a_run_is_followed() {
        const config = ProjectKeys.solveConfig(Object.assign(Presets.customerQuickSolvePreset(2), {
            boardText: "QsJh2h3s", startingStreet: "turn", oopRangeText: "100%", ipRangeText: "100%",
            maxIterations: 1000000, targetExploitability: 0
        }))
        Controller.startSolveWithConfig(config)
        const before = new Set()
        tryVerify(() => {
            const iteration = follower.currentIteration
            compare(iteration, Controller.iteration)
            if (iteration > 0 && iteration <= 50) {
                before.add(follower.currentExploitabilityValue)
                compare(follower.shownStatus, "Iteration " + iteration + " | exploitability=—")
            }
            return iteration > 50
        }, 60000)
        compare([...before], [undefined])
        const shown = Controller.exploitability.toFixed(4)
        compare(follower.currentIteration, Controller.iteration)
        compare(follower.currentExploitabilityValue, Number(shown))
        compare(follower.shownStatus, "Iteration " + Controller.iteration + " | exploitability=" + shown)
        compare(Controller.statusText, "Iter " + Controller.iteration + " | exploitability≈" + shown)
        Controller.cancelSolve()
        compare(follower.shownStatus, "Cancelling...")
        compare(follower.currentExploitabilityValue, undefined)
        tryVerify(() => !Controller.running, 60000)
        compare([follower.currentIteration, follower.shownStatus], [0, "Cancelled"])
        Controller.clearResults()
    }

    function test_memory_data() {
        return [
            { tag: "fits", required: 5, available: 6, reclaimable: 0, enough: true },
            { tag: "exactly all of it", required: 6, available: 6, reclaimable: 0, enough: false },
            { tag: "with what results give back", required: 8, available: 6, reclaimable: 3, enough: true },
            { tag: "no estimate", required: 0, available: 6, reclaimable: 0, enough: false },
            { tag: "unknown free memory", required: 5, available: 0, reclaimable: 9, enough: false },
            { tag: "broken figure", required: 5, available: 6, reclaimable: NaN, enough: true }
        ]
    }

    function test_memory(data) {
        compare(SolveGate.hasEnoughRamToSolve(data.required, data.available, data.reclaimable), data.enough)
    }

    function test_exploitability_shown_data() {
        return [
            { tag: "50", value: 1, shown: "∞" },
            { tag: "51", value: 1.006, shown: "1.01" },
            { tag: "60", value: undefined, shown: "—" }
        ]
    }

    function test_exploitability_shown(data) {
        compare(SolveStatus.formatExploitabilityForUi(Number(data.tag), data.value), data.shown)
    }

    function test_wheel_data() {
        return [
            { tag: "no target", target: 0, limit: 400, total: 400 },
            { tag: "1 %", target: 1, limit: 400, total: 150 },
            { tag: "half", target: 0.5, limit: 400, total: 200 },
            { tag: "tenth", target: 0.1, limit: 400, total: 300 },
            { tag: "finer", target: 0.09, limit: 400, total: 400 },
            { tag: "short limit", target: 0.5, limit: 120, total: 120 },
            { tag: "no limit", target: 0.5, limit: 0, total: 1 },
            { tag: "broken", target: NaN, limit: 400, total: 400 }
        ]
    }

    function test_wheel(data) {
        compare(SolveStatus.progressWheelTotalIterations(data.target, data.limit), data.total)
    }

    function test_window_and_clock() {
        compare([0, 1, 10, 11, 20].map(iteration => SolveStatus.iterationWindowValue(iteration, 10)), [0, 1, 10, 1, 10])
        compare([0, 61, 6000].map(SolveStatus.formatMinutesSeconds), ["00:00", "01:01", "100:00"])
    }

    function test_thread_choices_data() {
        return [
            { tag: "1", choices: ["Max", "1"] },
            { tag: "8", choices: ["Max", "1", "2", "4", "8"] },
            { tag: "12", choices: ["Max", "1", "2", "4", "8", "12"] },
            { tag: "192", choices: ["Max", "1", "2", "4", "8", "16", "32", "64", "128", "192"] }
        ]
    }

    function test_thread_choices(data) {
        compare(SolveStatus.threadChoices(Number(data.tag)), data.choices)
    }

    function test_thread_count() {
        compare([0, 1, 7, 12, 13, NaN].map(count => SolveStatus.validThreadCount(count, 12)), [12, 1, 7, 12, 12, 12])
    }

    function test_configuration_map() {
        const config = ProjectKeys.solveConfig(Object.assign(Presets.customerQuickSolvePreset(4), {
            oopTurnDontDonk: true, ipAddAllInIfJamLtEnabled: true, ipAddAllInIfJamLtPct: 40
        }))
        compare(Object.keys(config).length, 11 + 18 + 3 + 4)
        compare(config.board, "QsJh2h")
        compare(config.target_exploitability, 0.9)
        compare(config.thread_count, 4)
        compare(config.oop_turn_bet_sizes, "55")
        compare(config.ip_river_raise_sizes, "45")
        compare(config.oop_turn_dont_donk, true)
        compare(config.ip_turn_dont_donk, undefined)
        compare(config.oop_add_all_in_jam_threshold_enabled, false)
        compare(config.ip_add_all_in_jam_threshold_pct, 40)
        compare(ProjectKeys.percentOfPot(0, 0.5), 0)
        compare(ProjectKeys.percentOfPot(100, NaN), 0)
    }

    function test_profiles_bring_back_all_but_board_and_ranges() {
        const state = Object.assign(Presets.customerQuickSolvePreset(4), { oopFlopAddAllIn: true, rakeCap: 7 })
        const values = SettingsProfiles.projectValues(SettingsProfiles.snapshot(state), 0)
        for (const key of ProjectKeys.all) {
            const kept = !["boardText", "oopRangeText", "ipRangeText", "betSizesText", "threadCount"].includes(key)
            compare(ProjectKeys.coerced(key, values[key]), kept ? state[key] : ProjectKeys.coerced(key, undefined), key)
        }
    }

    function test_older_profiles() {
        const values = SettingsProfiles.projectValues({
            starting_pot: 200, target_exploitability: 1, add_all_in_jam_threshold_enabled: true,
            add_all_in_jam_threshold_pct: 30, oop_add_all_in_jam_threshold_enabled: false
        }, 50)
        compare(values.targetExploitability, 0.5)
        compare(values.oopAddAllInIfJamLtEnabled, true)
        compare(values.ipAddAllInIfJamLtPct, 30)
        // What a profile does not name is empty or off, and not what was there before.
        for (const key of ProjectKeys.sizeTexts)
            compare(values[key], "", key)
        for (const key of ProjectKeys.switches.filter(key => !key.includes("IfJam") && !/^ip.*Donk/.test(key)))
            compare(values[key], false, key)
        compare(SettingsProfiles.projectValues({ target_exploitability: 1 }, 0).targetExploitability, 1)
        const noNumber = JSON.parse('{"toString": 1}')
        compare(SettingsProfiles.projectValues({ starting_pot: noNumber, target_exploitability: noNumber }, 0).targetExploitability, 0)
        const bare = SettingsProfiles.projectValues({}, 50)
        compare([bare.ipAddAllInIfJamLtEnabled, bare.ipAddAllInIfJamLtPct, bare.startingPot], [false, undefined, undefined])
    }

    function test_stored_profiles_data() {
        return [
            { tag: "not JSON", json: "{", names: [] },
            { tag: "no list", json: "{\"name\": \"fast\"}", names: [] },
            { tag: "what has no name goes", json: "[null, 3, {\"name\": \"  \"}, {\"name\": \" fast \", \"data\": []}]", names: ["fast"] }
        ]
    }

    function test_stored_profiles(data) {
        const profiles = SettingsProfiles.parse(data.json, () => "new")
        compare(profiles.map(profile => profile.name), data.names)
        for (const profile of profiles) {
            compare(profile.id, "new")
            compare(profile.createdAt, "")
            compare(profile.data, {})
        }
    }

    function test_numbers_typed_data() {
        return [
            { tag: "0", whole: 0, real: 0 }, { tag: "", whole: NaN, real: NaN }, { tag: "abc", whole: NaN, real: NaN },
            { tag: "2,5", whole: NaN, real: 2.5 }, { tag: "5.5", whole: NaN, real: 5.5 }, { tag: " 7 ", whole: 7, real: 7 },
            { tag: "7.", whole: NaN, real: 7 }, { tag: ".5", whole: NaN, real: 0.5 }, { tag: ".", whole: NaN, real: NaN },
            { tag: "1.2345", whole: NaN, real: NaN }, { tag: "1,000.5", whole: NaN, real: NaN }, { tag: "-5", whole: NaN, real: NaN },
            { tag: "1e3", whole: NaN, real: NaN }, { tag: "5 5", whole: NaN, real: NaN }, { tag: "0x10", whole: NaN, real: NaN }
        ]
    }

    function test_numbers_typed(data) {
        compare(NumberText.parsed(data.tag, 0), data.whole)
        compare(NumberText.parsed(data.tag, 3), data.real)
    }

    function test_file_urls_data() {
        return [
            { tag: "bare path", answer: "/home/u/my #1 spot.velmoraproj", url: "file:///home/u/my%20%231%20spot.velmoraproj" },
            { tag: "a URL already", answer: "file:///home/u/a%20b.velmoraproj", url: "file:///home/u/a%20b.velmoraproj" },
            { tag: "elsewhere", answer: "http://host/a", url: "http://host/a" }
        ]
    }

    function test_file_urls(data) {
        compare(FileUrl.ofLocalFile(data.answer), data.url)
    }
}
