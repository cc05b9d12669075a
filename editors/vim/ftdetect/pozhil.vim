autocmd BufNewFile,BufRead *.பொழில் setfiletype pozhil
