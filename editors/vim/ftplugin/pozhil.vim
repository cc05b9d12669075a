" பொழில்: மொழியின் பழக்கங்கள் · habits of the language
if exists('b:did_ftplugin')
  finish
endif
let b:did_ftplugin = 1

" Tamil letters with their marks are words of Vim without saying so; only ASCII must be told.
setlocal iskeyword=@,48-57,_
setlocal comments=b:ஃ commentstring=ஃ\ %s
setlocal expandtab shiftwidth=4 softtabstop=4
setlocal suffixesadd=.பொழில்

" :make tells the faults of the file, with g++ untouched.
setlocal makeprg=pozhil\ check\ %:S

let b:undo_ftplugin = 'setlocal iskeyword< comments< commentstring< expandtab< shiftwidth< softtabstop<'
      \ . ' suffixesadd< makeprg<'
