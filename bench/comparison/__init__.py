"""What compare.py is made of.

stage     the data, the places and the running of programs
peers     the commands that the product is compared with, and their words
measures  one function for each kind of comparison
growth    how time and memory grow with the number of entries
rows      the table of all comparisons, with their targets
report    verdicts, tables and the documents that hold them
machine   the words that describe the machine
volumes   the folders that everything is measured in
rights    the ordinary user that everything is run as
"""
