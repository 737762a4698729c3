# Usage: awk -v root=TREE/ -f qt_paths.awk LAYERS COMPILE_COMMANDS
# Names each source of a plain folder that is compiled with a path to Qt's headers.

FILENAME == ARGV[1] { if ($2 == "plain") plain[$1] = 1; next }

/"command":/ { command = $0 }

/"file":/ {
    split($0, parts, "\"")
    file = parts[4]
    if (index(file, root) != 1)
        next
    file = substr(file, length(root) + 1)
    folder = file
    sub(/\/[^\/]*$/, "", folder)
    if (!(folder in plain))
        next
    checked++
    if (command ~ /-(I|isystem) ?[^ ]*\/[Qq][Tt]/) {
        print file ": is compiled with a path to Qt's headers"
        failed = 1
    }
}

END {
    if (!checked) {
        print "no source of a plain folder among the compile commands"
        failed = 1
    }
    exit failed
}
