" பொழில்: உள்தள்ளல் · indentation
if exists('b:did_indent')
  finish
endif
let b:did_indent = 1

setlocal indentexpr=PozhilIndent(v:lnum)
setlocal indentkeys=o,O,0),0],0},=இல்லை,=பிடி,=மற்றவை,=நிலை
setlocal nosmartindent autoindent
let b:undo_indent = 'setlocal indentexpr< indentkeys< smartindent< autoindent<'

if exists('*PozhilIndent')
  finish
endif

" The line without texts and comment, whose signs don't count.
function s:Code(number) abort
  let l:line = substitute(getline(a:number), '"[^"]*"', '""', 'g')
  return substitute(l:line, '\k\@1<!ஃ.*$', '', '')
endfunction

" One level deeper after a colon or an open bracket, one level out for what closes, and after what leaves a block.
function PozhilIndent(number) abort
  let l:before = prevnonblank(a:number - 1)
  if l:before == 0
    return 0
  endif
  let l:depth = indent(l:before)
  let l:code = s:Code(l:before)
  if l:code =~# '[:([{]\s*$'
    let l:depth += shiftwidth()
  elseif l:code =~# '^\s*\%(திரும்பு\|நிறுத்து\|தொடர்\)\>'
    let l:depth -= shiftwidth()
  endif
  let l:here = getline(a:number)
  if l:here =~# '^\s*[])}]'
    let l:depth -= shiftwidth()
  elseif l:here =~# '^\s*\%(இல்லை\>\%(\s*:\|\s\+எனில்\>\)\|பிடி\>\s*[:(]\)'
    let l:depth = s:BlockDepth(l:before, l:depth)
  endif
  return max([l:depth, 0])
endfunction

" The depth of the condition or attempt that a branch belongs to.
function s:BlockDepth(from, depth) abort
  let l:number = a:from
  while l:number > 0
    if indent(l:number) < a:depth || l:number == a:from
      if getline(l:number) =~# '^\s*\%(எனில்\|இல்லை\|முயற்சி\)\>' && indent(l:number) <= a:depth
        return indent(l:number)
      endif
    endif
    let l:number -= 1
  endwhile
  return a:depth
endfunction
