.pragma library

/// A file dialog's answer as a URL of a local file. The dialog that Qt draws itself, where the system
/// has none, gives a typed name as a bare path.
function ofLocalFile(answer) {
    const text = String(answer)
    return text.startsWith("/") ? "file://" + text.split("/").map(encodeURIComponent).join("/") : text
}

/// The name of a file without its folder, and without `suffix` in any case.
function baseName(file, suffix) {
    const name = decodeURIComponent(String(file)).split("/").pop()
    return name.toLowerCase().endsWith(suffix) ? name.slice(0, -suffix.length) : name
}

/// The URL of a file name in a folder, given as a URL.
function inFolder(folder, name) {
    return String(folder).replace(/\/*$/, "/") + encodeURIComponent(name)
}
