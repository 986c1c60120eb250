# Read by cpack, which without dpkg-shlibdeps would make a package that depends on nothing.
foreach(program dpkg-shlibdeps file)
  find_program(${program}_path ${program})
  if(NOT ${program}_path)
    message(FATAL_ERROR "${program} is missing. Run scripts/setup package, then cpack again.")
  endif()
endforeach()
