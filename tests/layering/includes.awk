# Usage: awk -f includes.awk LAYERS SOURCE...
# Prints each include that the layers forbid, then each ring of files that include each other.

function FolderOf(path)
{
    return path ~ /\// ? substr(path, 1, match(path, /\/[^\/]*$/) - 1) : ""
}

# A header and its source are one subject.
function SubjectOf(path)
{
    sub(/\.(h|cpp)$/, "", path)
    return path
}

function Fail(text)
{
    print text
    failed = 1
}

# Programs that try or time the others include whatever they need.
function IsFree(folder)
{
    return folder ~ /^(tests|bench|fuzz)(\/|$)/
}

function ReadLayer(    i)
{
    if (/^#/ || NF == 0)
        return
    for (i = 3; i <= NF; i++) {
        if (!($i in known))
            Fail(FILENAME ":" FNR ": " $1 " may not include " $i ", which does not stand above it in the list")
        allowed[$1, $i] = 1
    }
    known[$1] = 1
}

function CheckFolders(from, to)
{
    if (from == to || IsFree(from) || !(from in known) || (from, to) in allowed)
        return
    Fail(FILENAME ":" FNR ": " from " includes " to ", which its layer does not allow")
}

FILENAME == ARGV[1] { ReadLayer(); next }

FNR == 1 {
    folder = FolderOf(FILENAME)
    if (!IsFree(folder) && !(folder in known) && !told[folder]++)
        Fail(FILENAME ": folder " folder " is not in the list of layers")
}

/^[ \t]*#[ \t]*include[ \t]*"/ {
    split($0, parts, "\"")
    header = parts[2]
    if (header ~ /^(ui_[^\/]*\.h|[^\/]*\.moc)$/)
        next
    if (header !~ /^[^.\/].*\//) {
        Fail(FILENAME ":" FNR ": \"" header "\" is not named by its path from the top folder")
        next
    }
    CheckFolders(folder, FolderOf(header))
    from = SubjectOf(FILENAME)
    to = SubjectOf(header)
    if (from != to && !((from, to) in includes)) {
        includes[from, to] = FILENAME ":" FNR
        targets[from] = targets[from] " " to
    }
}

# Follows the includes from a subject; the path so far is the stack.
function Visit(subject, depth,    i, n, next_ones)
{
    state[subject] = "open"
    stack[depth] = subject
    n = split(targets[subject], next_ones, " ")
    for (i = 1; i <= n; i++) {
        if (state[next_ones[i]] == "open")
            TellRing(next_ones[i], depth)
        else if (state[next_ones[i]] == "")
            Visit(next_ones[i], depth + 1)
    }
    state[subject] = "done"
}

function TellRing(first, depth,    i, text)
{
    for (i = depth; stack[i] != first; i--)
        ;
    text = "these include each other:"
    for (; i < depth; i++)
        text = text "\n  " includes[stack[i], stack[i + 1]] " includes " stack[i + 1]
    Fail(text "\n  " includes[stack[depth], first] " includes " first)
}

END {
    for (subject in targets)
        if (state[subject] == "")
            Visit(subject, 1)
    exit failed
}
