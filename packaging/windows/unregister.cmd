@echo off
rem Takes back what register.cmd did; the same options.
rem The last line, without "call", which would expand the folder's name once more: it may have a %.
"%~dp0register.cmd" unregister %*
