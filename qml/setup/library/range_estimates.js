.pragma library

// First estimates of how the common player types play before the flop, every hand at full frequency:
// for a table position and an action, the ranges of the archetypes in the order of the list. Who
// limps or opens a hand is in the pot, so "Limp" with "RFI" is about an archetype's VPIP there; what
// limps and then calls or raises again is a part of "Limp", what meets a 3-bet a part of "RFI", and
// what meets a 4-bet a part of "3b". "BU" plays as "UTG/HJ/CO".

// All suited hands below the Aces.
const _lowSuited = "K2s+, Q2s+, J2s+, T2s+, 92s+, 82s+, 72s+, 62s+, 52s+, 42s+, 32s"
// Who limped to trap raises again with the same hands, however loose.
const _traps = Array(4).fill("QQ+, AKs, AKo")

const PASSIVE = {
    archetypes: ["Passive tight", "Passive neutral", "Passive loose", "Extreme loose"],
    estimates: {
        "UTG/HJ/CO": {
            "Limp": [
                "QQ+, 99-22, AKs, A9s-A2s, K9s, Q9s, J9s, T8s+, 97s+, 87s, 76s, 65s, AKo, ATo, KJo, QJo",
                "QQ+, 88-22, AKs, A9s-A2s, KTs-K6s, Q8s+, J8s+, T8s+, 97s+, 86s+, 75s+, 65s, 54s, AKo, ATo, A9o, KTo+, QTo+, JTo",
                "QQ+, 88-22, AKs, ATs-A2s, KTs-K2s, QTs-Q4s, J7s+, T7s+, 96s+, 85s+, 75s+, 64s+, 53s+, 43s, AKo, ATo-A4o, KJo-K9o, Q9o+, J9o+, T9o, 98o",
                "QQ+, 99-22, AKs, AJs-A2s, KJs-K2s, QJs-Q2s, J4s+, T5s+, 95s+, 84s+, 74s+, 63s+, 53s+, 42s+, 32s, AKo, AJo-A2o, KQo-K5o, Q7o+, J8o+, T8o+, 97o+, 87o, 76o"
            ],
            "Limp-call": [
                "99-22, A9s-A2s, K9s, T8s+, 97s+, 87s, 76s, 65s, KJo, QJo",
                "88-22, A9s-A2s, KTs-K8s, Q9s+, J8s+, T8s+, 97s+, 86s+, 75s+, 65s, 54s, ATo, KTo+, QTo+, JTo",
                "88-22, ATs-A2s, KTs-K5s, QTs-Q7s, J7s+, T7s+, 96s+, 85s+, 75s+, 64s+, 54s, ATo-A7o, KJo-K9o, QTo+, J9o+, T9o",
                "99-22, AJs-A2s, KJs-K2s, QJs-Q4s, J6s+, T6s+, 96s+, 85s+, 74s+, 64s+, 53s+, 43s, AJo-A3o, KQo-K7o, Q8o+, J8o+, T8o+, 98o, 87o"
            ],
            "Limp-3b": _traps,
            "RFI": [
                "TT+, ATs+, KTs+, QTs+, JTs, AJo+, KQo",
                "99+, ATs+, KJs+, QJs, AJo+, KQo",
                "99+, AJs+, KJs+, QJs, AJo+, KQo",
                "88+, ATs+, KTs+, QJs, AJo+, KQo"
            ],
            "3b": [
                "QQ+, AKs, AKo",
                "QQ+, AKs, AKo",
                "JJ+, AQs+, AKo",
                "TT+, AQs+, KQs, AKo"
            ],
            "Call 3b": [
                "JJ-TT, AQs-AJs, KQs, AQo",
                "JJ-99, AQs-ATs, KQs, AQo",
                "JJ-99, AQs-AJs, KJs+, QJs, AQo-AJo, KQo",
                "JJ-88, AQs-ATs, KTs+, QJs, AQo-AJo, KQo"
            ],
            "4b": [
                "KK+",
                "KK+, AKs",
                "QQ+, AKs",
                "QQ+, AKs, AKo"
            ],
            "Call 4b": [
                "QQ, AKs",
                "QQ, AKs, AKo",
                "QQ-JJ, AKs, AKo",
                "QQ-TT, AQs+, AKo"
            ]
        },
        "SB": {
            "Limp": [
                "QQ+, 77-22, AKs, A9s-A2s, K9s-K7s, Q9s, J8s+, T8s+, 97s+, 87s, 76s, 65s, AKo, A9o, KTo, QJo, JTo",
                "QQ+, 77-22, AKs, A8s-A2s, K9s-K5s, Q9s-Q7s, J7s+, T7s+, 96s+, 86s+, 75s+, 65s, 54s, AKo, A9o-A7o, KTo, QTo+, J9o+, T9o",
                "QQ+, 77-22, AKs, A9s-A2s, KTs-K2s, QTs-Q3s, J6s+, T6s+, 96s+, 85s+, 74s+, 64s+, 53s+, 43s, AKo, ATo-A3o, KJo-K8o, Q9o+, J8o+, T8o+, 98o",
                "QQ+, 88-22, AKs, ATs-A2s, KJs-K2s, QJs-Q2s, J3s+, T4s+, 94s+, 84s+, 73s+, 63s+, 52s+, 42s+, 32s, AKo, AJo-A2o, KQo-K4o, Q6o+, J7o+, T7o+, 97o+, 86o+, 76o"
            ],
            "Limp-3b": _traps,
            "RFI": [
                "88+, ATs+, KTs+, QTs+, JTs, ATo+, KJo+",
                "88+, A9s+, KTs+, QTs+, JTs, ATo+, KJo+",
                "88+, ATs+, KJs+, QJs, AJo+, KQo",
                "77+, ATs+, KTs+, QJs, JTs, AJo+, KQo"
            ],
            "3b": [
                "QQ+, AKs, AKo",
                "JJ+, AKs, AKo",
                "JJ+, AQs+, AKo",
                "TT+, AJs+, KQs, AQo+"
            ],
            "4b": [
                "KK+",
                "KK+, AKs",
                "QQ+, AKs",
                "QQ+, AKs, AKo"
            ],
            "Call 3b": [
                "JJ-99, AQs-ATs, KQs, AQo",
                "JJ-88, AQs-ATs, KJs+, QJs, AQo-AJo",
                "JJ-88, AQs-ATs, KJs+, QJs, AQo-AJo, KQo",
                "JJ-77, AQs-ATs, KTs+, QJs, JTs, AQo-AJo, KQo"
            ],
            "Call 4b": [
                "QQ, AKs",
                "QQ-JJ, AKs, AKo",
                "QQ-JJ, AKs, AKo",
                "QQ-TT, AQs+, AKo"
            ]
        },
        "BB": {
            "Check back": [
                "JJ-22, AQs-A2s, " + _lowSuited + ", AQo-A2o, K2o+, Q2o+, J2o+, T2o+, 92o+, 82o+, 72o+, 62o+, 52o+, 42o+, 32o",
                "TT-22, AJs-A2s, " + _lowSuited + ", AQo-A2o, K2o+, Q2o+, J2o+, T2o+, 92o+, 82o+, 72o+, 62o+, 52o+, 42o+, 32o",
                "TT-22, AJs-A2s, " + _lowSuited + ", AJo-A2o, K2o+, Q2o+, J2o+, T2o+, 92o+, 82o+, 72o+, 62o+, 52o+, 42o+, 32o",
                "100%"
            ],
            "Call raise": [
                "JJ-22, AQs-A2s, K9s+, Q9s+, J9s+, T8s+, 97s+, 86s+, 76s, 65s, 54s, AQo-ATo, KJo+, QJo",
                "JJ-22, AQs-A2s, K7s+, Q8s+, J8s+, T8s+, 97s+, 86s+, 75s+, 64s+, 54s, AQo-A9o, KTo+, QTo+, JTo",
                "TT-22, AJs-A2s, K4s+, Q6s+, J7s+, T7s+, 96s+, 85s+, 74s+, 64s+, 53s+, 43s, AQo-A7o, K9o+, Q9o+, J9o+, T9o",
                "TT-22, AJs-A2s, K2s+, Q2s+, J4s+, T6s+, 95s+, 84s+, 74s+, 63s+, 53s+, 42s+, 32s, AQo-A2o, K6o+, Q7o+, J8o+, T8o+, 97o+, 87o, 76o"
            ],
            "3b": [
                "QQ+, AKs, AKo",
                "QQ+, AKs, AKo",
                "JJ+, AQs+, AKo",
                "JJ+, AQs+, AKo"
            ],
            "Call 4b": [
                "QQ, AKs",
                "QQ, AKs, AKo",
                "QQ-JJ, AKs, AKo",
                "QQ-JJ, AQs+, AKo"
            ]
        }
    },
    /// A 3-bet from behind an opener and a caller, wherever the player sits.
    squeezes: ["QQ+, AKs", "QQ+, AKs, AKo", "JJ+, AKs, AKo", "TT+, AQs+, AKo"]
}

const LOOSE_AGGRESSIVE = {
    archetypes: ["Standard LAG", "Maniac"],
    estimates: {
        "UTG/HJ/CO": {
            "RFI": [
                "22+, A2s+, K6s+, Q8s+, J8s+, T7s+, 97s+, 86s+, 75s+, 65s, 54s, A8o+, KTo+, QTo+, JTo",
                "22+, A2s+, K2s+, Q2s+, J4s+, T6s+, 95s+, 84s+, 74s+, 64s+, 53s+, 43s, A2o+, K7o+, Q8o+, J8o+, T8o+, 98o, 87o"
            ],
            "3b": [
                "99+, ATs+, A5s-A2s, KTs+, QJs, T9s, 98s, 87s, 76s, AJo+, KQo",
                "77+, A2s+, K8s+, Q9s+, J9s+, T8s+, 97s+, 86s+, 75s+, 65s, 54s, A9o+, KTo+, QJo"
            ],
            "Call 3b": [
                "JJ-22, AQs-A9s, KTs+, QTs+, JTs, T9s, 98s, 87s, 76s, AQo-AJo, KQo",
                "99-22, AJs-A6s, K8s+, Q8s+, J8s+, T8s+, 97s+, 86s+, 75s+, 64s+, 54s, AJo-A8o, KTo, KQo, QTo+, JTo"
            ],
            "4b": [
                "QQ+, AKs, A5s-A4s, AKo",
                "TT+, AQs+, A5s-A2s, K5s, AQo+, KJo"
            ],
            "Call 4b": [
                "QQ-TT, AQs+, KQs, AKo",
                "QQ-88, AQs-ATs, KTs+, QJs, AQo-AJo, KQo"
            ]
        },
        "SB": {
            "RFI": [
                "22+, A2s+, K4s+, Q6s+, J7s+, T7s+, 96s+, 85s+, 75s+, 64s+, 54s, A5o+, K9o+, Q9o+, J9o+, T9o",
                "22+, A2s+, K2s+, Q2s+, J2s+, T4s+, 94s+, 84s+, 73s+, 63s+, 53s+, 42s+, 32s, A2o+, K4o+, Q7o+, J7o+, T7o+, 97o+, 87o, 76o"
            ],
            "3b": [
                "88+, ATs+, A5s-A2s, KTs+, QTs+, JTs, T9s, 98s, 87s, AJo+, KQo",
                "66+, A2s+, K8s+, Q9s+, J9s+, T8s+, 97s+, 86s+, 75s+, 65s, 54s, A8o+, KTo+, QJo"
            ],
            "4b": [
                "QQ+, AKs, A5s-A4s, AKo",
                "TT+, AQs+, A5s-A2s, K5s, AQo+, KJo"
            ],
            "Call 3b": [
                "JJ-22, AQs-A8s, KTs+, QTs+, J9s+, T9s, 98s, 87s, 76s, AQo-ATo, KQo",
                "99-22, AJs-A6s, K6s+, Q8s+, J8s+, T8s+, 97s+, 86s+, 75s+, 64s+, 54s, AJo-A7o, KTo, KQo, QTo+, JTo"
            ],
            "Call 4b": [
                "QQ-TT, AQs+, KQs, AKo",
                "QQ-77, AQs-ATs, KTs+, QJs, AQo-AJo, KQo"
            ]
        },
        "BB": {
            "Call raise": [
                "99-22, ATs-A6s, K9s-K5s, Q9s-Q7s, J9s-J7s, T7s+, 96s+, 85s+, 75s, 64s, 53s+, 43s, ATo-A7o, KJo-K9o, Q9o+, J9o+, T9o, 98o",
                "66-22, K8s-K2s, Q8s-Q2s, J8s-J2s, T8s-T2s, 97s-92s, 86s-82s, 75s-72s, 64s-62s, 52s+, 42s+, 32s, A7o-A2o, K9o-K4o, Q5o+, J6o+, T6o+, 96o+, 86o+, 75o+, 65o"
            ],
            "3b": [
                "TT+, AJs+, A5s-A2s, KTs+, QTs+, JTs, 76s, 65s, AJo+, KQo",
                "77+, A2s+, K9s+, Q9s+, J9s+, T9s, 98s, 87s, 76s, 65s, A8o+, KTo+"
            ],
            "Call 4b": [
                "QQ-TT, AQs+, KQs, AKo",
                "QQ-88, AQs-AJs, KTs+, QJs, AQo-AJo, KQo"
            ]
        }
    }
}
