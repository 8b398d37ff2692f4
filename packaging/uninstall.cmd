@echo off
rem Takes back what install.cmd did:  uninstall [machine or user] [x86 or x64]
call "%~dp0install.cmd" /remove %*
