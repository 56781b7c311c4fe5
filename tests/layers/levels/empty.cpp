// Sources are compiled by nobody: the project is only configured.
