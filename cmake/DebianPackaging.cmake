# Read by cpack, which would make a package without dependencies if dpkg-shlibdeps were missing.
foreach(program dpkg-shlibdeps file)
  find_program(${program}_path ${program})
  if(NOT ${program}_path)
    message(FATAL_ERROR "${program} is missing. Run scripts/setup package, then cpack again.")
  endif()
endforeach()
