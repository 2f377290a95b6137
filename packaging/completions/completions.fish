# Completions of fish for the commands of Orvik Menu. What a command takes is read from its help text.

# The words that are typed after the command.
function __orvik_words
    commandline --tokenize --current-process --cut-at-cursor | tail -n +2
end

# __orvik_run ARGUMENT...: what the command that is completed prints.
function __orvik_run
    set line (commandline --tokenize --current-process --cut-at-cursor)
    $line[1] $argv 2>/dev/null
end

# __orvik_help EXPRESSION: the first words of the lines that begin so.
function __orvik_help
    __orvik_run --help | sed -n "s/^$argv[1].*/\1/p"
end

# Those that can be done here are programs of their own, which may have workers, and files that say what they need.
function __orvik_actions
    set line (commandline --tokenize --current-process --cut-at-cursor)
    set program (realpath (command --search $line[1]))
    and ls (dirname $program)/@to_actions@ 2>/dev/null | string match --invert --regex -- '-worker$|[.]'
end

# __orvik_after NUMBER COMMAND...: whether that many words are there, the first of them one of the commands.
function __orvik_after
    set words (__orvik_words)
    test (count $words) = $argv[1]
    and contains -- "$words[1]" $argv[2..]
end

function __orvik_domains
    printf '%s\n' suite app
    __orvik_run domains
end

function __orvik_keys
    set words (__orvik_words)
    __orvik_run export $words[2] - | sed -n 's:^\t<key>\(.*\)</key>$:\1:p'
end

for command in @commands@
    complete --command $command --no-files
    complete --command $command --condition 'test (count (__orvik_words)) = 0; and string match --quiet -- "-*" (commandline --current-token)' \
        --arguments '(__orvik_help "  \(--[a-z]*\)")'
end

complete --command orvik-menu --condition '__orvik_after 1 --tab' --arguments "(printf '%s\n' @tabs@)"

complete --command orvik-menu-extension --condition '__orvik_after 1 --run' --arguments '(__orvik_actions)'
complete --command orvik-menu-extension --condition 'contains -- --run (__orvik_words)[1]; and not __orvik_after 1 --run' \
    --force-files

complete --command orvik-notify --condition 'test (count (__orvik_words)) = 0' --arguments "@notifications@"
complete --command orvik-notify --condition 'test (count (__orvik_words)) = 1' --arguments "@extension@"

complete --command orvik-defaults --condition 'test (count (__orvik_words)) = 0' --arguments '(__orvik_help "  \([a-z][a-z]*\)")'
complete --command orvik-defaults --condition '__orvik_after 1 read write delete export import path repair' \
    --arguments '(__orvik_domains)'
complete --command orvik-defaults --condition '__orvik_after 2 read write delete' --arguments '(__orvik_keys)'
complete --command orvik-defaults --condition '__orvik_after 2 export import' --force-files
complete --command orvik-defaults --condition '__orvik_after 3 write' --arguments '(__orvik_help "      \(-[a-z]*\)")'
complete --command orvik-defaults --condition '__orvik_after 4 write; and string match -q -- -bool (__orvik_words)[4]' \
    --arguments 'true false'
