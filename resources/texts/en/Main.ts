<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
<name>Main</name>
<message><source>About text</source><translation>A logbook for divers, with calculators and record books.</translation></message>
<message><source>About title</source><translation>About Tavrel</translation></message>
<message><source>Activities</source><translation>Activities</translation></message>
<message><source>Add</source><translation>Add</translation></message>
<message><source>Add entry</source><translation>Add</translation></message>
<message><source>Add item to ComboBox</source><translation>Add “%@” to the list?</translation></message>
<message><source>Add item to which list</source><translation>The list is “%@”. Its window, in the menu Lists, can settle this once for all.</translation></message>
<message><source>Add new card question</source><translation>The form holds a new card that is not in the list yet.</translation></message>
<message><source>Add second</source><translation>Add Second</translation></message>
<message><source>Add to toolbar</source><translation>Add to the toolbar</translation></message>
<message><source>All documents</source><translation>All documents</translation></message>
<message><source>All files</source><translation>All files</translation></message>
<message><source>Answer no</source><translation>&amp;No</translation></message>
<message><source>Answer yes</source><translation>&amp;Yes</translation></message>
<message><source>Brands</source><translation>Brands</translation></message>
<message><source>Buddies</source><translation>Buddies</translation></message>
<message><source>Cancel</source><translation>Cancel</translation></message>
<message><source>Cancelled</source><translation>The work was cancelled.</translation></message>
<message><source>Cards</source><translation>%d cards</translation></message>
<message><source>Carnet de plongee</source><translation>Dive logbook</translation></message>
<message><source>Causes of sinking</source><translation>Causes of Sinking</translation></message>
<message><source>Check</source><translation>✓</translation></message>
<message><source>Closed</source><translation>Closed</translation></message>
<message><source>Clubs</source><translation>Clubs</translation></message>
<message><source>Command line description</source><translation>A logbook for divers.</translation></message>
<message><source>Command line files</source><translation>Documents to open.</translation></message>
<message><source>Command line help</source><translation>Show this help.</translation></message>
<message><source>Command line version</source><translation>Show the version.</translation></message>
<message><source>Copy data</source><translation>Copy Data</translation></message>
<message><source>Copy kept</source><translation>The previous contents are kept in “%@”.</translation></message>
<message><source>Copy picture</source><translation>Copy Picture</translation></message>
<message><source>Copying</source><translation>Copying the rows…</translation></message>
<message><source>Cotation 0</source><translation>☆</translation></message>
<message><source>Cotation 1</source><translation>★</translation></message>
<message><source>Cotation 2</source><translation>★★</translation></message>
<message><source>Cotation 3</source><translation>★★★</translation></message>
<message><source>Cotation 4</source><translation>★★★★</translation></message>
<message><source>Cotation 5</source><translation>★★★★★</translation></message>
<message><source>Cotation in words</source><translation>%d of %d stars</translation></message>
<message><source>Countries</source><translation>Countries</translation></message>
<message><source>Country codes</source><translation>Country Codes</translation></message>
<message><source>Customise</source><translation>Customise…</translation></message>
<message><source>Customise toolbar</source><translation>Customise toolbar</translation></message>
<message><source>Deco</source><translation>Decompression</translation></message>
<message><source>Delete</source><translation>Delete</translation></message>
<message><source>Delete entries</source><translation>Delete</translation></message>
<message><source>Discard</source><translation>Discard</translation></message>
<message><source>Dismiss</source><translation>Dismiss</translation></message>
<message><source>Display</source><translation>Display</translation></message>
<message><source>Dive computers</source><translation>Dive Computers</translation></message>
<message><source>Divers documents</source><translation>Miscellaneous documents</translation></message>
<message><source>Diving bag</source><translation>Diving Bag</translation></message>
<message><source>Document has no file</source><translation>The document has not been saved to a file yet.</translation></message>
<message><source>Document not opened</source><translation>“%@” could not be opened: %@</translation></message>
<message><source>Document not saved</source><translation>“%@” could not be saved: %@</translation></message>
<message><source>Don't save</source><translation>Don’t Save</translation></message>
<message><source>Empty record book</source><translation>There are no cards yet. %@ makes a new one.</translation></message>
<message><source>Equipment types</source><translation>Equipment Types</translation></message>
<message><source>Erase</source><translation>Clear</translation></message>
<message><source>Erase card</source><translation>Delete the selected card?</translation></message>
<message><source>Erase cards</source><translation>Delete %d cards?</translation></message>
<message><source>Erase dive</source><translation>Delete the selected dive?</translation></message>
<message><source>Erase dives</source><translation>Delete %d dives?</translation></message>
<message><source>Erase interventions</source><translation>Delete %d interventions?</translation></message>
<message><source>Erase revisions</source><translation>Delete %d services?</translation></message>
<message><source>Erase selection</source><translation>Delete the selected entries?</translation></message>
<message><source>Export onto document</source><translation>An export cannot take the place of the document’s own file.</translation></message>
<message><source>Exporting</source><translation>Exporting…</translation></message>
<message><source>File changed by another</source><translation>Another program has changed the file.</translation></message>
<message><source>File is a folder</source><translation>It is a folder, not a file.</translation></message>
<message><source>File is not regular</source><translation>It is not a regular file.</translation></message>
<message><source>File is open</source><translation>It is open in another window.</translation></message>
<message><source>File missing</source><translation>There is no such file.</translation></message>
<message><source>File not readable</source><translation>The file cannot be read.</translation></message>
<message><source>File not writable</source><translation>The file cannot be written.</translation></message>
<message><source>File of newer version</source><translation>A newer version of Tavrel wrote the file. What this version does not know of it would be lost by saving over it.</translation></message>
<message><source>File open elsewhere</source><translation>It is open in %@.</translation></message>
<message><source>File permission denied</source><translation>You do not have permission to do so.</translation></message>
<message><source>File removed by another</source><translation>Another program has removed or renamed the file.</translation></message>
<message><source>File system read-only</source><translation>The disk is write-protected.</translation></message>
<message><source>Filter</source><translation>Filter</translation></message>
<message><source>Filter hint</source><translation>Filter: words in any field, or field:word</translation></message>
<message><source>Filter menu</source><translation>Kept filters and fields</translation></message>
<message><source>Filter name</source><translation>Name of the filter:</translation></message>
<message><source>Filter one field</source><translation>In One Field</translation></message>
<message><source>Filter tip</source><translation>Words in any field, accents and case aside; all of them must be found. A field’s name narrows: name:text, number&gt;30, date&gt;=2023-05. Words in quotation marks belong together. Escape shows everything again.</translation></message>
<message><source>Filtering</source><translation>Filtering…</translation></message>
<message><source>Find in</source><translation>Find in: %@</translation></message>
<message><source>Find where</source><translation>Choose what to search</translation></message>
<message><source>Flexible space</source><translation>Flexible space</translation></message>
<message><source>Folder missing</source><translation>The folder does not exist.</translation></message>
<message><source>Form of card</source><translation>Card %d of %d – stored when you close the window or go to another card</translation></message>
<message><source>Form of new card</source><translation>New card – “Add” puts it at the end of the list</translation></message>
<message><source>Found cards</source><translation>%d cards found</translation></message>
<message><source>General</source><translation>General</translation></message>
<message><source>Hint read as</source><translation>read as %@</translation></message>
<message><source>Hint usual maximum</source><translation>usually at most %@</translation></message>
<message><source>Hint usual minimum</source><translation>usually at least %@</translation></message>
<message><source>Hint usual range</source><translation>usually %@ to %@</translation></message>
<message><source>Import into</source><translation>“%@” holds dives from elsewhere. Import them into “%@”?</translation></message>
<message><source>Import into it</source><translation>Import…</translation></message>
<message><source>Import into new</source><translation>“%@” holds dives from elsewhere. Import them into a new logbook?</translation></message>
<message><source>Insert</source><translation>Insert</translation></message>
<message><source>Interventions</source><translation>%d interventions</translation></message>
<message><source>Keep filter</source><translation>Keep Filter…</translation></message>
<message><source>Keep filter title</source><translation>Keep Filter</translation></message>
<message><source>Loading</source><translation>Loading…</translation></message>
<message><source>Lock holder</source><translation>%@, process %@ on %@</translation></message>
<message><source>Lock holder unknown</source><translation>another program</translation></message>
<message><source>Logbook</source><translation>Logbook</translation></message>
<message><source>Materiel</source><translation>Equipment</translation></message>
<message><source>Memo</source><translation>Memo</translation></message>
<message><source>Memo hint</source><translation>Notes for yourself, kept between sessions</translation></message>
<message><source>Menu about</source><translation>About Tavrel</translation></message>
<message><source>Menu calculators</source><translation>Calculators</translation></message>
<message><source>Menu clear recent</source><translation>Clear List</translation></message>
<message><source>Menu close</source><translation>Close</translation></message>
<message><source>Menu columns</source><translation>Columns</translation></message>
<message><source>Menu convert units</source><translation>Convert Units…</translation></message>
<message><source>Menu copy</source><translation>Copy</translation></message>
<message><source>Menu delete cards</source><translation>Delete Cards…</translation></message>
<message><source>Menu edit</source><translation>Edit</translation></message>
<message><source>Menu edit card</source><translation>Edit Card</translation></message>
<message><source>Menu export</source><translation>Export Dives…</translation></message>
<message><source>Menu file</source><translation>File</translation></message>
<message><source>Menu filter</source><translation>Filter</translation></message>
<message><source>Menu find</source><translation>Find</translation></message>
<message><source>Menu help</source><translation>Help</translation></message>
<message><source>Menu import</source><translation>Import</translation></message>
<message><source>Menu insert card</source><translation>Insert Before Selected Card</translation></message>
<message><source>Menu lists</source><translation>Lists</translation></message>
<message><source>Menu minimise</source><translation>Minimise</translation></message>
<message><source>Menu new</source><translation>New</translation></message>
<message><source>Menu new card</source><translation>New Card</translation></message>
<message><source>Menu next card</source><translation>Next Card</translation></message>
<message><source>Menu open</source><translation>Open…</translation></message>
<message><source>Menu open recent</source><translation>Open Recent</translation></message>
<message><source>Menu page setup</source><translation>Page Set&amp;up…</translation></message>
<message><source>Menu preferences</source><translation>Preferences…</translation></message>
<message><source>Menu previous card</source><translation>Previous Card</translation></message>
<message><source>Menu print</source><translation>&amp;Print…</translation></message>
<message><source>Menu print preview</source><translation>Print Preview…</translation></message>
<message><source>Menu quit</source><translation>Quit</translation></message>
<message><source>Menu renumber</source><translation>Renumber Dives…</translation></message>
<message><source>Menu revert</source><translation>Revert to Saved…</translation></message>
<message><source>Menu revert to backup</source><translation>Revert to Backup…</translation></message>
<message><source>Menu save as</source><translation>Save As…</translation></message>
<message><source>Menu select all</source><translation>Select All</translation></message>
<message><source>Menu view</source><translation>View</translation></message>
<message><source>Menu window</source><translation>Window</translation></message>
<message><source>Move down</source><translation>Move towards the end</translation></message>
<message><source>Move up</source><translation>Move towards the front</translation></message>
<message><source>New entry</source><translation>New entry</translation></message>
<message><source>New words</source><translation>&amp;When a form meets a new word:</translation></message>
<message><source>New words always</source><translation>Always add it</translation></message>
<message><source>New words ask</source><translation>Ask</translation></message>
<message><source>New words never</source><translation>Never add it</translation></message>
<message><source>Next</source><translation>Next</translation></message>
<message><source>No</source><translation>No</translation></message>
<message><source>No Mac OS Roman</source><translation>This system cannot convert text to Mac OS Roman.</translation></message>
<message><source>No space left</source><translation>There is not enough space on the disk.</translation></message>
<message><source>No such field</source><translation>There is no field “%@”.</translation></message>
<message><source>No such value</source><translation>“%@” cannot be “%@”.</translation></message>
<message><source>No usable field</source><translation>There is no field “%@” that can be used this way.</translation></message>
<message><source>No valid datas</source><translation>The values are not valid.</translation></message>
<message><source>Not a picture format</source><translation>“%@” does not end in .png, .svg or .pdf.</translation></message>
<message><source>Nothing matches</source><translation>Nothing matches the filter.
Escape in its field shows everything again.</translation></message>
<message><source>One card</source><translation>One card</translation></message>
<message><source>One card found</source><translation>1 card found</translation></message>
<message><source>One intervention</source><translation>One intervention</translation></message>
<message><source>One revision</source><translation>One service</translation></message>
<message><source>Open anyway</source><translation>Open Anyway</translation></message>
<message><source>Open document</source><translation>Open</translation></message>
<message><source>Open elsewhere question</source><translation>“%@” is open in %@.
Two programs that save the same document undo each other’s changes.</translation></message>
<message><source>Open read-only</source><translation>Open Read-Only</translation></message>
<message><source>Overwrite</source><translation>Overwrite</translation></message>
<message><source>Page of pages</source><translation>Page %d of %d</translation></message>
<message><source>Pages</source><translation>Pages of the form</translation></message>
<message><source>Picture</source><translation>Picture</translation></message>
<message><source>Picture cannot be made</source><translation>The picture could not be made.</translation></message>
<message><source>Picture choose</source><translation>Choose…</translation></message>
<message><source>Picture copy</source><translation>Copy</translation></message>
<message><source>Picture damaged</source><translation>The picture is damaged.</translation></message>
<message><source>Picture enlarge</source><translation>Enlarge</translation></message>
<message><source>Picture export</source><translation>Export…</translation></message>
<message><source>Picture files</source><translation>Pictures</translation></message>
<message><source>Picture has too many pixels</source><translation>The picture is too large: %d × %d pixels, and %d million at most.</translation></message>
<message><source>Picture none</source><translation>No picture. Choose a file, drop it here, or paste.</translation></message>
<message><source>Picture not shown</source><translation>The picture is of a kind that cannot be shown. It is kept as it is.</translation></message>
<message><source>Picture not written</source><translation>The picture could not be written.</translation></message>
<message><source>Picture nowhere</source><translation>There is no picture.</translation></message>
<message><source>Picture paste</source><translation>Paste</translation></message>
<message><source>Picture remove</source><translation>Remove</translation></message>
<message><source>Picture shown</source><translation>Picture, %d × %d pixels</translation></message>
<message><source>Picture unknown format</source><translation>The file is no picture that this program can read.</translation></message>
<message><source>Places</source><translation>Places</translation></message>
<message><source>Preferences not saved</source><translation>The preferences could not be saved to “%@”.</translation></message>
<message><source>Previous</source><translation>Previous</translation></message>
<message><source>Print</source><translation>Print</translation></message>
<message><source>Print preview title</source><translation>Print Preview</translation></message>
<message><source>Printing</source><translation>Printing…</translation></message>
<message><source>Printing failed</source><translation>The document could not be printed.</translation></message>
<message><source>Profile</source><translation>Profile</translation></message>
<message><source>Program is busy</source><translation>Tavrel is running already, but is busy and does not answer.</translation></message>
<message><source>Read-only title</source><translation>%@ (read-only)</translation></message>
<message><source>Rebreather</source><translation>Rebreather</translation></message>
<message><source>Redo</source><translation>Redo</translation></message>
<message><source>Redo step</source><translation>Redo %@</translation></message>
<message><source>Reload</source><translation>Reload</translation></message>
<message><source>Remove filter</source><translation>Remove Filter</translation></message>
<message><source>Remove from toolbar</source><translation>Remove from the toolbar</translation></message>
<message><source>Rename entry hint</source><translation>Double-click or F2 renames an entry.</translation></message>
<message><source>Restore</source><translation>Restore</translation></message>
<message><source>Revert</source><translation>Revert</translation></message>
<message><source>Revert question</source><translation>Revert “%@” to the saved version? Your changes will be lost.</translation></message>
<message><source>Revert to backup question</source><translation>Do you want to go back to what “%@” held before it was first saved in this session or the last?
Everything entered since is lost, unless you do not save.</translation></message>
<message><source>Revisions</source><translation>%d services</translation></message>
<message><source>Save</source><translation>Save</translation></message>
<message><source>Save changes</source><translation>Save the changes made to “%@”?</translation></message>
<message><source>Save document as</source><translation>Save as</translation></message>
<message><source>Save elsewhere</source><translation>Save As…</translation></message>
<message><source>Save over change</source><translation>Another program has changed “%@” since it was opened.
Overwriting loses what that program wrote, reloading what you entered.</translation></message>
<message><source>Save over removal</source><translation>Another program has removed or renamed “%@” since it was opened.</translation></message>
<message><source>Separator</source><translation>Separator</translation></message>
<message><source>Services</source><translation>Services</translation></message>
<message><source>Shops</source><translation>Shops</translation></message>
<message><source>Show data</source><translation>Show Data…</translation></message>
<message><source>Shown of all</source><translation>%d of %d</translation></message>
<message><source>Sites</source><translation>Sites</translation></message>
<message><source>Space</source><translation>Space</translation></message>
<message><source>Store</source><translation>Store</translation></message>
<message><source>Store card question</source><translation>The card in the form was changed and is not stored yet.</translation></message>
<message><source>Synthesis card</source><translation>Summary card</translation></message>
<message><source>Tip add</source><translation>Add a card at the end of the list</translation></message>
<message><source>Tip add second</source><translation>Add the entries as a second record, at the end of the list</translation></message>
<message><source>Tip customise</source><translation>Choose what this toolbar holds</translation></message>
<message><source>Tip delete</source><translation>Delete the selected cards</translation></message>
<message><source>Tip erase</source><translation>Clear all fields</translation></message>
<message><source>Tip insert</source><translation>Insert the card before the selected one</translation></message>
<message><source>Tip opens</source><translation>Ctrl+click opens it</translation></message>
<message><source>Tip print</source><translation>Print the list</translation></message>
<message><source>Tip save</source><translation>Save the document</translation></message>
<message><source>Tip synthesis card</source><translation>Show the summary of all cards</translation></message>
<message><source>Tip update</source><translation>Store the fields into the selected card</translation></message>
<message><source>Toolbar available</source><translation>Available</translation></message>
<message><source>Toolbar icons</source><translation>Icons</translation></message>
<message><source>Toolbar icons and words</source><translation>Words under icons</translation></message>
<message><source>Toolbar initial</source><translation>Initial arrangement</translation></message>
<message><source>Toolbar present</source><translation>In the toolbar</translation></message>
<message><source>Toolbar shows</source><translation>Show</translation></message>
<message><source>Toolbar words</source><translation>Words</translation></message>
<message><source>Toolbar words beside icons</source><translation>Words beside icons</translation></message>
<message><source>Type budget</source><translation>Budget Forecast</translation></message>
<message><source>Type clubs</source><translation>Club Address Book</translation></message>
<message><source>Type companies</source><translation>Company Address Book</translation></message>
<message><source>Type compressor</source><translation>Compressor Maintenance</translation></message>
<message><source>Type consumables</source><translation>Consumables Inventory</translation></message>
<message><source>Type documents</source><translation>Miscellaneous Documents</translation></message>
<message><source>Type equipment</source><translation>Equipment Inventory</translation></message>
<message><source>Type logbook</source><translation>Dive Logbook</translation></message>
<message><source>Type rebreather</source><translation>Rebreather Service Log</translation></message>
<message><source>Type wrecks</source><translation>Wreck Repertory</translation></message>
<message><source>Undo</source><translation>Undo</translation></message>
<message><source>Undo add card</source><translation>Add Card</translation></message>
<message><source>Undo delete card</source><translation>Delete Cards</translation></message>
<message><source>Undo import cards</source><translation>Import Cards</translation></message>
<message><source>Undo insert card</source><translation>Insert Card</translation></message>
<message><source>Undo step</source><translation>Undo %@</translation></message>
<message><source>Undo update card</source><translation>Change Card</translation></message>
<message><source>Unknown document type</source><translation>Tavrel knows no document type "%@".</translation></message>
<message><source>Unknown kind of document</source><translation>It is a kind of document that Tavrel does not know.</translation></message>
<message><source>Unsaved form</source><translation>“%@” (%@), %@: what was being typed</translation></message>
<message><source>Unsaved later</source><translation>Later</translation></message>
<message><source>Unsaved question</source><translation>Tavrel ended without saving:
%@
Do you want it back?</translation></message>
<message><source>Unsaved records</source><translation>“%@” (%@), %@: all records (%@)</translation></message>
<message><source>Unsaved records and form</source><translation>“%@” (%@), %@: all records (%@) and what was being typed</translation></message>
<message><source>Unsaved without file</source><translation>never saved</translation></message>
<message><source>Unsaved work kept aside</source><translation>Some unsaved work of an earlier session cannot be read. It stays in this folder for half a year: %@</translation></message>
<message><source>Unsaved work not kept</source><translation>What is not saved yet could not be kept against a sudden end of the program. Save it soon.</translation></message>
<message><source>Unsaved work not readable</source><translation>What was kept of the unsaved work is damaged.</translation></message>
<message><source>Untitled</source><translation>Untitled</translation></message>
<message><source>Update</source><translation>Update</translation></message>
<message><source>Used in records</source><translation>Used in %d records of the open documents</translation></message>
<message><source>Used so often</source><translation>%d×</translation></message>
<message><source>Wreck types</source><translation>Wreck Types</translation></message>
<message><source>Wrecks</source><translation>Wrecks</translation></message>
<message><source>XML file beyond limits</source><translation>The XML file nests or grows beyond all reason and was not read.</translation></message>
<message><source>XML file too large</source><translation>The XML file is too large to be read.</translation></message>
<message><source>XML file without elements</source><translation>The file is not XML.</translation></message>
<message><source>Yes</source><translation>Yes</translation></message>
</context>
</TS>
