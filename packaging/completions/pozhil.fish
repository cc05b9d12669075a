# fish completion for பொழி and பொழில் (pozhil). What பொழில் knows, it tells itself.

function __pozhil_words
    set -l words (commandline -opc)
    $words[1] --நிறைவு 2>/dev/null
end

function __pozhil_switches
    set -l words (commandline -opc)
    $words[1] --நிறைவு $words[2] 2>/dev/null
end

function __pozhil_needs_word
    set -l words (commandline -opc)
    test (count $words) -eq 1; or contains -- $words[2] உதவி help
end

for command in பொழில் pozhil
    complete -c $command -n __pozhil_needs_word -f -a '(__pozhil_words)'
    complete -c $command -n 'not __pozhil_needs_word; and string match -q -- "-*" (commandline -ct)' -f -a '(__pozhil_switches)'
end
complete -c பொழி -l வலை -d 'வலைச் செயலியாக'
complete -c பொழி -l கண்காணி -d 'கோப்பு மாறும்போதெல்லாம் மீண்டும்'
complete -c பொழி -l பதிப்பு -d 'பதிப்பு எண்'
