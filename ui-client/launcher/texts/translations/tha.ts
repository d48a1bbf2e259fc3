<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>ลบแล้ว</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>ยกเลิกการเชื่อมโยง</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>เพิ่มไฟล์แล้ว: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>เปลี่ยนโฟลเดอร์</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>ผสาน</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>เพิ่มแล้ว</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>แก้ไขแล้ว</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>เปลี่ยนชื่อแล้ว</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>ย้ายแล้ว</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>กู้คืนแล้ว</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>เปลี่ยนแปลงไฟล์แล้ว: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>ลบไฟล์แล้ว: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>เปลี่ยนชื่อไฟล์แล้ว: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>เพิ่มโฟลเดอร์แล้ว: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>ลบโฟลเดอร์แล้ว: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>ไฟล์ที่เปลี่ยนแปลงล่าสุด</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>ยังไม่มีไฟล์ที่เปลี่ยนแปลง</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>แสดงการเปลี่ยนแปลงทั้งหมด</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>เปิดโฟลเดอร์</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>เปิด Corvimo Client</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>เปิดในเว็บเบราว์เซอร์</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>หยุดการซิงค์ชั่วคราว</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>หยุดชั่วคราวหนึ่งชั่วโมง</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>หยุดชั่วคราวจนถึงพรุ่งนี้</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>ซิงค์ต่อ</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>การตั้งค่า</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>การแจ้งเตือน</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>วิธีใช้</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>เกี่ยวกับ Corvimo Client</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>ออก</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>ไฟล์จะไม่ได้รับการซิงค์จนกว่าคุณจะเริ่ม Corvimo Client อีกครั้ง คุณต้องการออกหรือไม่</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>เป็นปัจจุบันแล้ว</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>กำลังซิงค์...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>กำลังซิงค์ เหลืออีก %1 ไฟล์</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>กำลังอัปโหลด %1</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>กำลังดาวน์โหลด %1</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>กำลังค้นหาการเปลี่ยนแปลง...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>หยุดชั่วคราวแล้ว</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>หยุดชั่วคราวแล้วจนถึง %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>ไม่ได้เชื่อมต่อ</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>กำลังเชื่อมต่อ...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>กำลังรอ</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>ต้องการการดำเนินการจากคุณ</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>ไม่สามารถซิงค์บางไฟล์ได้</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>ยังไม่ได้ตั้งค่างานซิงค์</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>อัปโหลด %1, ดาวน์โหลด %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>เปิด</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>เปิดด้วย...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>แสดงในโฟลเดอร์</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>ประวัติเวอร์ชัน</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>รับลิงก์</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>คัดลอกลิงก์</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>แชร์...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>ส่งลิงก์ทางอีเมล</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>ซิงค์ทันที</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>ซิงค์โฟลเดอร์นี้</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>หยุดซิงค์โฟลเดอร์นี้</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>เก็บไว้ในคอมพิวเตอร์เครื่องนี้เสมอ</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>เพิ่มพื้นที่ว่าง</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>ล็อกไฟล์</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>ปลดล็อกไฟล์</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>กู้คืน</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>เปลี่ยนชื่อ</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>ลบ</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>รีเฟรช</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>คุณสมบัติ</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>คัดลอกเส้นทาง</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>เลือกทั้งหมด</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>โฟลเดอร์ใหม่</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>ตัด</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>คัดลอก</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>วาง</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>เลิกทำ</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>ทำซ้ำ</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>ไม่ซิงค์ไฟล์ที่ใช้ชื่อนี้</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>ไม่ซิงค์ไฟล์ประเภทนี้</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>ล็อกโดย %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>ล็อก “%1” แล้ว ผู้อื่นสามารถอ่านได้แต่เปลี่ยนแปลงไม่ได้</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>ปลดล็อก “%1” แล้ว</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>คัดลอกลิงก์ไปยังคลิปบอร์ดแล้ว</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>คัดลอกเส้นทางไปยังคลิปบอร์ดแล้ว</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>เลือก %1 รายการ</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>รายการนี้ไม่ได้อยู่ในโฟลเดอร์ที่ซิงค์</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>งานซิงค์</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>ภาพรวม</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>การซิงค์</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>การสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>กิจกรรมล่าสุด</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>สร้าง</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>สร้างงานซิงค์</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>แก้ไข</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>หยุดชั่วคราว</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>ดำเนินการต่อ</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>หยุดชั่วคราวทั้งหมด</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>ดำเนินการต่อทั้งหมด</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>ค้นหา</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>ไม่พบสิ่งที่ตรงกับ “%1”</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>ยังไม่มีงานซิงค์ สร้างงานเพื่อให้โฟลเดอร์ในคอมพิวเตอร์เครื่องนี้และโฟลเดอร์ใน Corvimo Server เหมือนกันอยู่เสมอ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>ชื่อ</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>สถานะ</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>โฟลเดอร์ในคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>โฟลเดอร์ใน Corvimo Server</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>ขนาด</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>วันที่แก้ไข</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>ประเภท</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>เจ้าของ</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>บัญชี</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>ซิงค์ล่าสุด</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>หยุดแล้ว</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>ข้อผิดพลาด</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>ไม่พบโฟลเดอร์</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>อ่านอย่างเดียว</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>ลบงานซิงค์</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>คุณต้องการลบงานซิงค์ “%1” หรือไม่ ไฟล์ของคุณจะยังอยู่ในคอมพิวเตอร์เครื่องนี้และใน Corvimo Server</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>คุณต้องการลบงานซิงค์ที่เลือก %1 งานหรือไม่ ไฟล์ของคุณจะยังอยู่ในคอมพิวเตอร์เครื่องนี้และใน Corvimo Server</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>ลบงานซิงค์แล้ว</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>หยุดการซิงค์ชั่วคราวแล้ว การเปลี่ยนแปลงจะได้รับการซิงค์เมื่อคุณดำเนินการต่อ</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>ล้างรายการ</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>กิจกรรมทั้งหมด</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>เฉพาะข้อผิดพลาด</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>อัปโหลด %1 แล้ว</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>ดาวน์โหลด %1 แล้ว</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>ลบ %1 ออกจากคอมพิวเตอร์เครื่องนี้แล้ว</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>ลบ %1 ออกจาก Corvimo Server แล้ว</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>เปลี่ยนชื่อ %1 เป็น %2 แล้ว</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>ย้าย %1 ไปยัง %2 แล้ว</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>มีการเปลี่ยนแปลง %1 ไฟล์โดย %2</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>เลือกโฟลเดอร์ที่จะซิงค์</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>เลือกโฟลเดอร์ใน Corvimo Server และโฟลเดอร์ในคอมพิวเตอร์เครื่องนี้ Corvimo Client จะทำให้ทั้งสองโฟลเดอร์เหมือนกันอยู่เสมอ</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>เลือกโฟลเดอร์บนเซิร์ฟเวอร์</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>เลือกโฟลเดอร์ในเครื่อง</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>เปลี่ยน</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>เลือกดู...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>ถัดไป</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>ย้อนกลับ</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>นำไปใช้</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>ชื่อของโฟลเดอร์ใหม่</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>ไม่สามารถสร้างโฟลเดอร์ “%1” ได้ โปรดเลือกชื่ออื่นหรือตรวจสอบสิทธิ์ของคุณ</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>สร้างโฟลเดอร์ว่างชื่อ “%1” ที่นี่</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>ทิศทางการซิงค์</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>ซิงค์สองทาง</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>อัปโหลดการเปลี่ยนแปลงเท่านั้น</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>ดาวน์โหลดการเปลี่ยนแปลงเท่านั้น</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>การเปลี่ยนแปลงในฝั่งใดก็ตามจะถูกคัดลอกไปยังอีกฝั่ง</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>การเปลี่ยนแปลงในคอมพิวเตอร์เครื่องนี้จะถูกอัปโหลด การเปลี่ยนแปลงใน Corvimo Server จะไม่ถูกดาวน์โหลด</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>การเปลี่ยนแปลงใน Corvimo Server จะถูกดาวน์โหลด การเปลี่ยนแปลงในคอมพิวเตอร์เครื่องนี้จะไม่ถูกอัปโหลด</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>เก็บไฟล์ไว้ในคอมพิวเตอร์เครื่องนี้เมื่อไฟล์ถูกลบใน Corvimo Server</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>เก็บไฟล์ไว้ใน Corvimo Server เมื่อไฟล์ถูกลบในคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>ผสานโฟลเดอร์</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>ทั้งสองโฟลเดอร์มีไฟล์อยู่แล้ว โปรดเลือกวิธีจัดการกับไฟล์เหล่านั้น</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>มีโฟลเดอร์ “%1” อยู่แล้ว คุณต้องการผสานกับโฟลเดอร์ใน Corvimo Server หรือไม่</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>ผสานทั้งสองโฟลเดอร์และเก็บไฟล์ทั้งหมด</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>ใช้ไฟล์ในคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>ใช้ไฟล์ใน Corvimo Server</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>เลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>ไฟล์ที่แตกต่างกันจะถูกเก็บไว้สองสำเนา</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>ไฟล์ใน Corvimo Server ที่ไม่มีในคอมพิวเตอร์เครื่องนี้จะถูกลบ</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>ไฟล์ในคอมพิวเตอร์เครื่องนี้ที่ไม่มีใน Corvimo Server จะถูกย้ายไปยังถังขยะ</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>ไฟล์ที่มีชื่อเดียวกันจะถูกแทนที่ ไม่สามารถเลิกทำการดำเนินการนี้ได้</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>กำลังเปรียบเทียบทั้งสองโฟลเดอร์...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>เปรียบเทียบแล้ว %1 จาก %2 ไฟล์</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>ขณะนี้ทั้งสองโฟลเดอร์เหมือนกันแล้ว</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>โฟลเดอร์นี้เป็นส่วนหนึ่งของงานซิงค์อยู่แล้ว โปรดเลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>โฟลเดอร์นี้อยู่ภายในโฟลเดอร์ที่ซิงค์อยู่แล้ว โปรดเลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>โฟลเดอร์นี้มีโฟลเดอร์ที่ซิงค์อยู่แล้ว โปรดเลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>ไม่สามารถซิงค์โฟลเดอร์ระบบได้ โปรดเลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>ไม่สามารถซิงค์ทั้งดิสก์ได้ โปรดเลือกโฟลเดอร์ในดิสก์</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>ไม่สามารถซิงค์โฟลเดอร์ในดิสก์แบบถอดได้</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>ไม่สามารถซิงค์โฟลเดอร์เครือข่าย เช่น \\server\share ได้ โปรดเลือกโฟลเดอร์ในคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>คุณไม่มีสิทธิ์เขียนในโฟลเดอร์นี้ โปรดเลือกโฟลเดอร์อื่น</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>โฟลเดอร์นี้ถูกเข้ารหัสและล็อกอยู่ โปรดปลดล็อกใน Corvimo Server ก่อน</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>ไม่พบโฟลเดอร์ โฟลเดอร์อาจถูกย้ายหรือลบไปแล้ว</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>ไม่รองรับระบบไฟล์ของดิสก์นี้ โปรดใช้ดิสก์ที่มีระบบไฟล์ที่รองรับ</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>คุณมีงานซิงค์ครบจำนวนสูงสุด %1 งานแล้ว โปรดลบงานที่ไม่ต้องการแล้ว</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>การซิงค์แบบเลือก</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>เลือกสิ่งที่จะซิงค์ไปยังคอมพิวเตอร์เครื่องนี้ โฟลเดอร์ที่คุณยกเลิกการเลือกจะถูกเอาออกจากคอมพิวเตอร์เครื่องนี้แต่จะยังอยู่ใน Corvimo Server</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>โฟลเดอร์</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>ตัวกรองไฟล์</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>ยกเลิกการเลือกทั้งหมด</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>ซิงค์โฟลเดอร์ใหม่โดยอัตโนมัติ</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>กำลังโหลด...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>ไม่สามารถโหลดรายการโฟลเดอร์ได้ โปรดตรวจสอบการเชื่อมต่อแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>ลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>%1 โฟลเดอร์จะถูกเอาออกจากคอมพิวเตอร์เครื่องนี้ แต่จะยังอยู่ใน Corvimo Server</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>เอาโฟลเดอร์ออกจากคอมพิวเตอร์เครื่องนี้หรือไม่</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>บางไฟล์ในโฟลเดอร์เหล่านี้ยังไม่ได้อัปโหลดและจะสูญหาย โปรดซิงค์ไฟล์เหล่านั้นก่อน</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>เอาออก</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>เลือกแล้ว: %1 จาก %2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>ไม่ซิงค์ไฟล์ที่มีขนาดใหญ่กว่า</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>ไม่ซิงค์ไฟล์ที่มีนามสกุลเหล่านี้</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>ไม่ซิงค์ไฟล์ที่มีชื่อเหล่านี้</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>เพิ่มนามสกุล</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>เพิ่มชื่อ</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>ซิงค์ไฟล์และโฟลเดอร์ที่ชื่อขึ้นต้นด้วยจุด</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>ไฟล์ชั่วคราวของโปรแกรมทั่วไปจะไม่ถูกซิงค์</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>คืนค่าเริ่มต้น</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>คุณต้องการกลับไปใช้ตัวกรองเริ่มต้นหรือไม่</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>ป้อนนามสกุลไฟล์ เช่น “iso”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>มี “%1” ในรายการอยู่แล้ว</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>ชื่อต้องไม่มีอักขระต่อไปนี้: \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>ป้อนขนาดระหว่าง %1 ถึง %2</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>ถูกยกเว้นโดยตัวกรอง</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>บันทึกตัวเลือกของคุณแล้ว Corvimo Client กำลังนำไปใช้</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>ไฟล์เอกสาร</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>ไฟล์รูปภาพ</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>ไฟล์วิดีโอ</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>ไฟล์เพลง</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>ไฟล์บีบอัด</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>ไฟล์อื่น</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>เวอร์ชันของ “%1”</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>เวอร์ชันปัจจุบัน</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>เวอร์ชันก่อนหน้า</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>เวอร์ชัน</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>เปลี่ยนโดย</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>อุปกรณ์</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ดาวน์โหลด</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>แสดงตัวอย่าง</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>ปิด</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>ไฟล์นี้ไม่มีเวอร์ชันก่อนหน้า</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>เลือกไฟล์เพื่อดูเวอร์ชันของไฟล์</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>กู้คืนเวอร์ชัน</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>คุณต้องการแทนที่เวอร์ชันปัจจุบันด้วยเวอร์ชันจาก %1 หรือไม่</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>เวอร์ชันปัจจุบันจะถูกเก็บไว้ในประวัติ</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>กู้คืน “%1” เป็นเวอร์ชันจาก %2 แล้ว</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>ไม่สามารถกู้คืนเวอร์ชันได้ โปรดลองอีกครั้งในภายหลัง</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>กู้คืนเป็นสำเนา</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>บันทึกเวอร์ชันเป็น</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>บันทึกเวอร์ชันไปยัง “%1” แล้ว</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>คุณต้องการลบเวอร์ชันนี้หรือไม่ เมื่อลบแล้วจะไม่สามารถนำกลับมาได้</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>ไม่สามารถลบเวอร์ชันได้</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>ได้รับการป้องกันจากการลบอัตโนมัติ</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Corvimo Server เก็บเวอร์ชันของไฟล์ได้สูงสุด %1 เวอร์ชัน</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>ประวัติเวอร์ชันของโฟลเดอร์นี้ปิดอยู่ โปรดขอให้ผู้ดูแลระบบเปิดใช้</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>ไม่มีการเก็บเวอร์ชันสำหรับไฟล์ประเภทนี้</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>ไฟล์ที่ลบแล้ว</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>แสดงไฟล์ที่ลบแล้ว</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>ลบเมื่อ %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>คุณต้องการกู้คืนรายการที่เลือก %1 รายการหรือไม่</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>กู้คืน %1 รายการแล้ว</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>ไม่พบไฟล์ที่ลบแล้ว</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>ย้อนกลับไปยังเวลาที่เลือก</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>เลือกวันที่และเวลา</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>เปรียบเทียบ</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>แชร์</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>แชร์ “%1”</translation>
    </message>
    <message>
        <source>People</source>
        <translation>บุคคล</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>ลิงก์</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>เชิญบุคคลหรือสร้างลิงก์ไปยังรายการนี้</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>เชิญบุคคล</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>ป้อนชื่อหรือที่อยู่อีเมล</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>ส่งคำเชิญ</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>ส่งคำเชิญไปยัง %1 แล้ว</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>ไม่สามารถส่งคำเชิญได้ โปรดตรวจสอบที่อยู่อีเมล</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>ข้อความ (ไม่บังคับ)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>เพิ่ม</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>บันทึก</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>สิทธิ์</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>ดูได้</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>แก้ไขได้</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>จัดการได้</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>อัปโหลดได้เท่านั้น</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>ไม่มีสิทธิ์เข้าถึง</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>เปลี่ยนสิทธิ์ของ %1 แล้ว</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>คุณไม่มีสิทธิ์แชร์รายการนี้ โปรดสอบถามเจ้าของรายการ</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>แชร์กับฉัน</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>แชร์โดยฉัน</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>แชร์กับ %1 คน</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>รายการนี้ไม่ได้แชร์</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>ออกจากโฟลเดอร์ที่แชร์</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>คุณต้องการออกจากโฟลเดอร์ที่แชร์ “%1” หรือไม่ โฟลเดอร์จะถูกเอาออกจากคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>“%1” ไม่ได้แชร์กับคุณอีกต่อไป</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1 แชร์ “%2” กับคุณ</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>กลุ่ม</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>ทุกคนบนเซิร์ฟเวอร์นี้</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>การตั้งค่าลิงก์</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>สร้างลิงก์</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>กำลังสร้างลิงก์...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>ลบลิงก์</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>คุณต้องการลบลิงก์นี้หรือไม่ ผู้ที่มีลิงก์จะไม่สามารถเปิดรายการได้อีก</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>ทุกคนที่มีลิงก์</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>เฉพาะผู้ที่มีบัญชี</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>ป้องกันด้วยรหัสผ่าน</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>รหัสผ่าน</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>รหัสผ่านต้องมีอักขระอย่างน้อย %1 ตัว</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>ป้อนรหัสผ่านสำหรับลิงก์</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>ลิงก์ใช้ได้จนถึง</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>ไม่มีวันหมดอายุ</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>เลือกวันที่ในอนาคต</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>ลิงก์นี้หมดอายุแล้ว</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>จำนวนครั้งที่อนุญาตให้ดาวน์โหลด</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>ดาวน์โหลดได้อีก %1 ครั้ง</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>อนุญาตให้ดาวน์โหลด</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>อนุญาตให้อัปโหลด</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>ไม่สามารถสร้างลิงก์ได้ โปรดลองอีกครั้งในภายหลัง</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>ผู้ดูแลระบบปิดใช้ลิงก์สำหรับโฟลเดอร์นี้</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>คำขอไฟล์</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>ผู้ที่มีลิงก์สามารถอัปโหลดไฟล์ไปยังโฟลเดอร์นี้ได้โดยไม่เห็นเนื้อหาในโฟลเดอร์</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>แสดงคิวอาร์โค้ด</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>ข้อขัดแย้ง</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>“%1” ถูกเปลี่ยนแปลงในสองที่พร้อมกัน</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>%1 ไฟล์ถูกเปลี่ยนแปลงในสองที่พร้อมกัน</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>เลือกเวอร์ชันที่จะเก็บไว้ อีกเวอร์ชันหนึ่งจะถูกบันทึกเป็นสำเนาที่ขัดแย้งกัน</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>เก็บเวอร์ชันในคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>เก็บเวอร์ชันใน Corvimo Server</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>เก็บทั้งสองเวอร์ชัน</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>เก็บเวอร์ชันที่ใหม่กว่า</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>ถามฉันทุกครั้ง</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>ทำเช่นนี้กับข้อขัดแย้งทั้งหมด</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>สำเนาที่ขัดแย้งกันของ %1, %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>ในคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>ใน Corvimo Server</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>เปลี่ยนโดย %1 เมื่อ %2</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>เมื่อไฟล์ถูกเปลี่ยนแปลงในสองที่</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>ชื่อที่ต่างกันเฉพาะตัวพิมพ์ใหญ่และตัวพิมพ์เล็ก</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>“%1” และ “%2” ต่างกันเฉพาะตัวพิมพ์ใหญ่และตัวพิมพ์เล็ก โปรดเปลี่ยนชื่อรายการใดรายการหนึ่ง</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>ไม่มีข้อขัดแย้ง</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>แก้ไขข้อขัดแย้งแล้ว</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>ไม่สามารถแก้ไขข้อขัดแย้งได้เนื่องจากไฟล์เปิดอยู่ โปรดปิดไฟล์แล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>แก้ไขข้อขัดแย้ง</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>ตัดสินใจภายหลัง</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>เปิดทั้งสองไฟล์</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>ข้าม</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>คุณลบ “%1” แต่ไฟล์มีการเปลี่ยนแปลงใน Corvimo Server ไฟล์ที่เปลี่ยนแปลงจึงถูกเก็บไว้</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>“%1” ถูกลบใน Corvimo Server แต่คุณได้เปลี่ยนแปลงไฟล์ ไฟล์ของคุณจึงถูกเก็บไว้</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>“%1” เป็นไฟล์ในฝั่งหนึ่งและเป็นโฟลเดอร์ในอีกฝั่งหนึ่ง โปรดเปลี่ยนชื่อรายการใดรายการหนึ่ง</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>สำเนาที่ขัดแย้งกัน</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>ลบสำเนาที่ขัดแย้งกัน</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>คุณต้องการลบสำเนาที่ขัดแย้งกัน %1 รายการหรือไม่ เมื่อลบแล้วจะไม่สามารถนำกลับมาได้</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>“%1” เปิดอยู่ในโปรแกรมอื่นและจะได้รับการซิงค์เมื่อปิดแล้ว</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>การเชื่อมต่อ</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>ที่อยู่เซิร์ฟเวอร์</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>ชื่อโฮสต์ ที่อยู่ IP หรือ Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>พอร์ต</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>ชื่อผู้ใช้</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>เข้ารหัสการเชื่อมต่อ</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>หากไม่เข้ารหัส ผู้อื่นในเครือข่ายจะสามารถอ่านไฟล์และรหัสผ่านของคุณได้</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>เชื่อมต่อ</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>ยกเลิกการเชื่อมต่อ</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>เชื่อมต่ออีกครั้ง</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>ทดสอบการเชื่อมต่อ</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>กำลังทดสอบการเชื่อมต่อ...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>การเชื่อมต่อใช้งานได้</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>การเชื่อมต่อใช้งานไม่ได้ โปรดตรวจสอบที่อยู่และพอร์ต</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>เชื่อมต่อแล้ว</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>เชื่อมต่อกับ %1 แล้ว</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>ขาดการเชื่อมต่อกับ %1 แล้ว Corvimo Client จะลองอีกครั้งในอีก %2 วินาที</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>การเชื่อมต่อกับ %1 กลับมาแล้ว</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>กำลังรอการเชื่อมต่อเครือข่าย</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>ไม่ซิงค์บนเครือข่ายที่คิดค่าบริการตามปริมาณข้อมูล</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>หยุดการซิงค์ชั่วคราวเนื่องจากเครือข่ายนี้คิดค่าบริการตามปริมาณข้อมูล</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>เชื่อมต่อผ่านเครือข่ายภายใน</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>เชื่อมต่อผ่านอินเทอร์เน็ต</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>เชื่อมต่อผ่านเซิร์ฟเวอร์ส่งต่อ</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>เซิร์ฟเวอร์ส่งต่อช้ากว่าการเชื่อมต่อโดยตรง</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>ค้นหาเซิร์ฟเวอร์ในเครือข่ายนี้</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>กำลังค้นหาเซิร์ฟเวอร์...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>ไม่พบเซิร์ฟเวอร์ในเครือข่ายนี้ โปรดป้อนที่อยู่ของเซิร์ฟเวอร์ด้วยตนเอง</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>พบเซิร์ฟเวอร์ %1 เครื่อง</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>ไม่พบเซิร์ฟเวอร์ “%1” โปรดตรวจสอบการสะกดที่อยู่</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>เซิร์ฟเวอร์ปฏิเสธการเชื่อมต่อ โปรดตรวจสอบว่า Corvimo Server กำลังทำงานอยู่</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>เซิร์ฟเวอร์ไม่ตอบกลับภายในเวลาที่กำหนด โปรดลองอีกครั้งในภายหลัง</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>คอมพิวเตอร์เครื่องนี้ไม่ได้เชื่อมต่อกับเครือข่าย</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>ป้อนพอร์ตระหว่าง 1 ถึง 65535</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>ป้อนที่อยู่ของเซิร์ฟเวอร์</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>ไม่มี Corvimo ID “%1”</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>เซิร์ฟเวอร์ที่ใช้ Corvimo ID นี้ออฟไลน์อยู่ โปรดตรวจสอบว่าเปิดเครื่องอยู่</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>ไม่ได้ติดตั้ง Corvimo Server หรือไม่ได้ทำงานบนเซิร์ฟเวอร์นี้</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>เซิร์ฟเวอร์อยู่ระหว่างการบำรุงรักษา การซิงค์จะดำเนินต่อเมื่อเซิร์ฟเวอร์พร้อมใช้งานอีกครั้ง</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server เก่าเกินไปสำหรับไคลเอนต์นี้ โปรดขอให้ผู้ดูแลระบบอัปเดตเป็นเวอร์ชัน %1 ขึ้นไป</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>ไคลเอนต์นี้เก่าเกินไปสำหรับ Corvimo Server โปรดอัปเดตเป็นเวอร์ชัน %1 ขึ้นไป</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>มีไคลเอนต์เชื่อมต่อกับเซิร์ฟเวอร์มากเกินไป โปรดลองอีกครั้งในภายหลัง</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>คอมพิวเตอร์เครื่องนี้ถูกบล็อกเนื่องจากพยายามไม่สำเร็จหลายครั้งเกินไป โปรดขอให้ผู้ดูแลระบบเลิกบล็อก</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>ไฟร์วอลล์อาจบล็อก Corvimo Client อยู่ โปรดอนุญาตให้ Corvimo Client ใช้พอร์ต %1</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>ไม่สามารถสร้างการเชื่อมต่อที่ปลอดภัยได้: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>เกิดข้อผิดพลาดที่ไม่รู้จัก (รหัส %1)</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>แก้ไขการเชื่อมต่อ</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>เอาการเชื่อมต่อออก</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>คุณต้องการเอาการเชื่อมต่อกับ %1 ออกหรือไม่ งานซิงค์ของการเชื่อมต่อนี้จะถูกลบ แต่ไฟล์ของคุณจะยังอยู่</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>ยังไม่ได้อัปโหลด %1 ไฟล์</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>ขั้นสูง</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>เชื่อมต่อล่าสุดเมื่อ %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>พร็อกซี</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>ใช้พร็อกซีเซิร์ฟเวอร์หากเครือข่ายของคุณจำเป็นต้องใช้เพื่อเข้าถึงอินเทอร์เน็ต</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>ไม่ใช้พร็อกซี</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>ใช้การตั้งค่าพร็อกซีของคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>ตั้งค่าพร็อกซีด้วยตนเอง</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>ประเภทพร็อกซี</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>ที่อยู่พร็อกซี</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>พร็อกซีต้องใช้ชื่อผู้ใช้และรหัสผ่าน</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>ไม่ใช้พร็อกซีสำหรับที่อยู่ภายใน</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>ไม่ใช้พร็อกซีสำหรับที่อยู่เหล่านี้</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>ทดสอบพร็อกซี</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>พร็อกซีใช้งานได้</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>ลงชื่อเข้าใช้พร็อกซี</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>พร็อกซี %1 ขอชื่อผู้ใช้และรหัสผ่าน</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>พร็อกซีไม่ยอมรับชื่อผู้ใช้หรือรหัสผ่าน</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>ไม่สามารถเข้าถึงพร็อกซี %1 ได้ โปรดตรวจสอบที่อยู่และพอร์ต</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>พร็อกซีไม่อนุญาตให้เชื่อมต่อกับ %1</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>ไม่สามารถอ่านการตั้งค่าพร็อกซีของคอมพิวเตอร์เครื่องนี้ได้</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>ป้อนที่อยู่ของพร็อกซี</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>ใบรับรอง</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>ใบรับรองไม่น่าเชื่อถือ</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>ใบรับรองของ %1 ไม่ได้ออกโดยหน่วยงานที่รู้จัก อาจมีผู้แอบอ้างเป็นเซิร์ฟเวอร์ของคุณ</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>เซิร์ฟเวอร์ใช้ใบรับรองที่ลงนามด้วยตนเอง</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>ใบรับรองหมดอายุเมื่อ %1</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>ใบรับรองยังใช้ไม่ได้ก่อน %1 โปรดตรวจสอบนาฬิกาของคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>ใบรับรองออกให้แก่ %1 ไม่ใช่ %2</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>ใบรับรองถูกเพิกถอนโดยหน่วยงานที่ออกใบรับรอง</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>ใบรับรองเปลี่ยนไป</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>ใบรับรองของ %1 ไม่ใช่ใบเดียวกับที่เคยใช้ โปรดสอบถามผู้ดูแลระบบว่ามีการต่ออายุหรือไม่</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>ใบรับรองใช้อัลกอริทึมที่ไม่ถือว่าปลอดภัยอีกต่อไป</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>เชื่อถือใบรับรองนี้</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>เชื่อถือใบรับรองนี้เสมอ</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>เชื่อถือเฉพาะครั้งนี้</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>ไม่เชื่อมต่อ</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>ดูใบรับรอง</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>ออกให้แก่</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>ออกโดย</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>ใช้ได้ตั้งแต่</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>ใช้ได้จนถึง</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>หมายเลขซีเรียล</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>ลายนิ้วมือ</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>อัลกอริทึมลายเซ็น</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>ความยาวกุญแจ</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>ส่งออกใบรับรอง</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>บันทึกใบรับรองไปยัง “%1” แล้ว</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>นำเข้าใบรับรอง</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>ไฟล์ไม่มีใบรับรองที่ถูกต้อง</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>คุณต้องการเอาใบรับรองของ %1 ออกจากใบรับรองที่เชื่อถือหรือไม่</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>พื้นที่จัดเก็บ</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>ใช้ไป %1 จาก %2</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>ว่าง %1</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>ไม่จำกัด</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>พื้นที่จัดเก็บใน Corvimo Server</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>พื้นที่จัดเก็บในคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>พื้นที่จัดเก็บตามประเภทไฟล์</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>พื้นที่จัดเก็บตามโฟลเดอร์</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>พื้นที่จัดเก็บที่เวอร์ชันก่อนหน้าใช้</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>พื้นที่จัดเก็บที่ไฟล์ที่ลบแล้วใช้</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>ล้างถังขยะ</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>คุณต้องการล้างถังขยะหรือไม่ ไฟล์ในถังขยะจะไม่สามารถนำกลับมาได้</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>ล้างถังขยะแล้ว มีพื้นที่ว่างเพิ่มขึ้น %1</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>กำลังคำนวณ...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>พื้นที่จัดเก็บของคุณใกล้เต็มแล้ว เหลือเพียง %1</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>พื้นที่จัดเก็บของคุณเต็มแล้ว</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>ไม่สามารถอัปโหลดไฟล์ใหม่ได้จนกว่าคุณจะลบบางไฟล์หรือขอพื้นที่จัดเก็บเพิ่มจากผู้ดูแลระบบ</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>โฟลเดอร์ “%1” ใช้โควตาเต็มแล้ว ไม่สามารถอัปโหลดไฟล์ใหม่ในโฟลเดอร์นี้ได้</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>วอลุ่มของ Corvimo Server เต็มแล้ว โปรดขอให้ผู้ดูแลระบบเพิ่มพื้นที่ว่าง</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>“%1” ใหญ่กว่าพื้นที่จัดเก็บที่เหลืออยู่ (%2)</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>พื้นที่ดิสก์เหลือน้อย</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>เหลือพื้นที่เพียง %1 ในดิสก์ “%2” การซิงค์จะหยุดเมื่อดิสก์เต็ม</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>พื้นที่ดิสก์ไม่เพียงพอ</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>ดิสก์ “%1” มีพื้นที่ไม่เพียงพอ การซิงค์หยุดชั่วคราวจนกว่าคุณจะเพิ่มพื้นที่ว่างอย่างน้อย %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>ไม่ได้ดาวน์โหลด “%1” เนื่องจากต้องใช้พื้นที่ดิสก์ %2</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>คุณสามารถเพิ่มพื้นที่ว่างได้ด้วยการซิงค์แบบเลือกหรือเก็บไฟล์ให้อยู่ทางออนไลน์เท่านั้น</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>เปิดการตั้งค่าพื้นที่จัดเก็บ</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>เว้นพื้นที่ดิสก์ว่างไว้อย่างน้อย</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>การดาวน์โหลดจะหยุดชั่วคราวเมื่อเหลือพื้นที่น้อยกว่านี้</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>ดิสก์ที่มีโฟลเดอร์ “%1” ไม่ได้เชื่อมต่ออยู่ โปรดเชื่อมต่อดิสก์เพื่อซิงค์ต่อ</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>ดิสก์ “%1” อ่านได้อย่างเดียว ไม่สามารถบันทึกการเปลี่ยนแปลงจาก Corvimo Server ลงในดิสก์ได้</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>มีพื้นที่ไม่เพียงพอสำหรับไฟล์ชั่วคราว โปรดเพิ่มพื้นที่ว่างอย่างน้อย %1</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>ไฟล์ชั่วคราว</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>ลบไฟล์ชั่วคราว</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>ลบไฟล์ชั่วคราวแล้ว (%1)</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>ตรวจสอบอีกครั้ง</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>ละเว้น</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>โฟลเดอร์</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>ใช้ไป</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>ไฟล์ที่ใหญ่ที่สุด</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>ลบหรือย้ายไฟล์ที่คุณไม่ต้องการแล้ว</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>เดือนนี้คุณใช้พื้นที่จัดเก็บเพิ่มขึ้น %1</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>หากใช้ในอัตรานี้ พื้นที่จัดเก็บของคุณจะเต็มในวันที่ %1</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>ขอพื้นที่จัดเก็บเพิ่ม</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>ส่งคำขอของคุณไปยังผู้ดูแลระบบแล้ว</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>คำขอของคุณกำลังรอคำตอบ</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>โควตาของกลุ่ม “%1” ถูกใช้หมดแล้ว</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 พร้อมแล้ว</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>รายการอัปเดตซอฟต์แวร์</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>ตรวจหารายการอัปเดต</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>กำลังตรวจหารายการอัปเดต...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>เวอร์ชันของคุณเป็นเวอร์ชันล่าสุดแล้ว</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>Corvimo Client เวอร์ชัน %1 พร้อมให้ใช้งานแล้ว</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>ดาวน์โหลดและติดตั้ง</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>เตือนฉันภายหลัง</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>ข้ามเวอร์ชันนี้</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>กำลังดาวน์โหลด...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>รายการอัปเดตพร้อมแล้ว เริ่ม Corvimo Client ใหม่เพื่อติดตั้ง</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>เริ่มใหม่ทันที</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>ไม่สามารถติดตั้งรายการอัปเดตได้ เวอร์ชันปัจจุบันของคุณยังคงใช้งานได้</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Corvimo Client ไม่สามารถตรวจหารายการอัปเดตได้</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>บันทึกประจำรุ่น</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>ติดตั้งรายการอัปเดตโดยอัตโนมัติ</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 กำลังเริ่มต้น...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>กำลังย้ายการตั้งค่าของคุณมาจากเวอร์ชันก่อนหน้า</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>ย้ายการตั้งค่าของคุณมาเรียบร้อยแล้ว คุณสามารถทำต่อจากจุดที่ค้างไว้ได้</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>ไม่สามารถย้ายการตั้งค่าบางส่วนมาจากเวอร์ชันก่อนหน้าได้ โปรดตรวจสอบงานซิงค์ของคุณ</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>รายการอัปเดตต้องใช้พื้นที่ดิสก์ %1</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>ไม่รองรับเวอร์ชันนี้อีกต่อไป โปรดติดตั้งรายการอัปเดตเพื่อซิงค์ต่อ</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>แบนด์วิดท์</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>ความเร็วการอัปโหลด</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>ความเร็วการดาวน์โหลด</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>จำกัดไว้ที่</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>ปรับโดยอัตโนมัติ</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Corvimo Client จะเว้นแบนด์วิดท์ไว้ให้โปรแกรมอื่นที่ใช้เครือข่าย</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>กำหนดเวลา</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>เลือกช่วงเวลาที่จะใช้ขีดจำกัด</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>ตลอดวัน</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>เวลาทำงาน</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>กลางคืน</translation>
    </message>
    <message>
        <source>From</source>
        <translation>ตั้งแต่</translation>
    </message>
    <message>
        <source>To</source>
        <translation>ถึง</translation>
    </message>
    <message>
        <source>Do not sync</source>
        <translation>ไม่ซิงค์</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>ความเร็วเต็มที่</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>จำกัดความเร็ว</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>ล้างกำหนดเวลา</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>ป้อนความเร็วที่มากกว่า 0</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>ป้อนความเร็วระหว่าง %1 ถึง %2</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>เวลาเริ่มต้นต้องอยู่ก่อนเวลาสิ้นสุด</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>ผู้ดูแลระบบจำกัดความเร็วไว้ที่ %1</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>จำนวนไฟล์ที่ถ่ายโอนพร้อมกัน</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>ไม่จำกัดความเร็วในเครือข่ายภายใน</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>ความเร็วปัจจุบัน</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>ความเร็วเฉลี่ย</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>ถ่ายโอนวันนี้</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>ถ่ายโอนเดือนนี้</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>เลือกสิ่งที่ต้องการให้ Corvimo Client แจ้งคุณ</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>เมื่อซิงค์เสร็จสมบูรณ์</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>เมื่อไม่สามารถซิงค์ไฟล์ได้</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>เมื่อมีผู้แชร์รายการกับฉัน</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>เมื่อมีผู้แสดงความคิดเห็นในไฟล์ของฉัน</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>เมื่อพื้นที่จัดเก็บใกล้เต็ม</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>เมื่อการสำรองข้อมูลเสร็จสมบูรณ์หรือล้มเหลว</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>เมื่อมีรายการอัปเดต</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>เมื่อขาดการเชื่อมต่อ</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>เล่นเสียง</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>ห้ามรบกวน</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>ช่วงเวลาห้ามรบกวน</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>ไม่มีการแจ้งเตือนจนถึง %1</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>ห้ามรบกวนฉันระหว่างการนำเสนอ</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>แสดงชื่อไฟล์ในการแจ้งเตือน</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>การแจ้งเตือนถูกปิดในการตั้งค่าระบบของคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>เปิดการตั้งค่าระบบ</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>ล้าง</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>ล้างทั้งหมด</translation>
    </message>
    <message>
        <source>View</source>
        <translation>ดู</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>ทำเครื่องหมายว่าอ่านแล้ว</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>ศูนย์การแจ้งเตือน</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>คุณไม่มีการแจ้งเตือน</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>การแจ้งเตือนใหม่ %1 รายการ</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>ไฟล์ทั้งหมดเป็นปัจจุบันแล้ว</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>การซิงค์ครั้งแรกเสร็จสมบูรณ์ ขณะนี้มี %1 ไฟล์ในคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>มีไฟล์ถูกลบจำนวนมาก</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>%1 ไฟล์ถูกลบออกจาก “%2” โปรดกู้คืนไฟล์หากคุณไม่ได้ตั้งใจลบ</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>%1 ไฟล์ถูกเปลี่ยนแปลงภายในเวลาอันสั้น หากคุณไม่ได้เป็นผู้ทำ โปรดหยุดการซิงค์ชั่วคราวและตรวจหามัลแวร์ในคอมพิวเตอร์ของคุณ</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>โฟลเดอร์ “%1” ถูกย้าย โปรดบอก Corvimo Client ว่าขณะนี้โฟลเดอร์อยู่ที่ใด</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1 แสดงความคิดเห็นใน “%2”</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>ปัญหาการซิงค์</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>ไม่สามารถซิงค์ไฟล์เหล่านี้ได้ Corvimo Client จะลองอีกครั้งเมื่อสาเหตุหมดไป</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>%1 ปัญหา</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>ไม่มีปัญหา</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ไฟล์</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>สาเหตุ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>เวลา</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>ลองทั้งหมดอีกครั้ง</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>รายละเอียด</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>คัดลอกรายละเอียด</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>รายงานปัญหา</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>คัดลอกรายละเอียดไปยังคลิปบอร์ดแล้ว</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>รหัสข้อผิดพลาด: %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>โปรแกรมอื่นกำลังใช้ไฟล์นี้อยู่ โปรดปิดไฟล์ในโปรแกรมนั้นเพื่อซิงค์ไฟล์</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>ไฟล์ถูกล็อกโดย %1</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>ไฟล์ถูกลบก่อนที่จะซิงค์ได้</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>ไฟล์มีการเปลี่ยนแปลงขณะอัปโหลด ไฟล์จะถูกอัปโหลดอีกครั้ง</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>ไฟล์เสียหายระหว่างการถ่ายโอน ไฟล์จะถูกถ่ายโอนอีกครั้ง</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>ไม่สามารถอ่านไฟล์ได้ โปรดตรวจสอบสิทธิ์ของไฟล์</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>ไม่สามารถเขียนไฟล์ได้ โปรดตรวจสอบสิทธิ์ของไฟล์</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>ไฟล์มีขนาดใหญ่กว่าขีดจำกัด %1</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>ไฟล์มีขนาดใหญ่เกินไปสำหรับระบบไฟล์ของดิสก์นี้</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>ไฟล์ถูกเข้ารหัสและไม่สามารถเปิดในคอมพิวเตอร์เครื่องนี้ได้</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>โปรแกรมสแกนไวรัสใน Corvimo Server บล็อกไฟล์นี้</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>โปรแกรมสแกนไวรัสในคอมพิวเตอร์เครื่องนี้บล็อกไฟล์นี้</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>ไม่อนุญาตไฟล์ประเภทนี้ใน Corvimo Server</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>ไม่สามารถซิงค์อุปกรณ์ ไปป์ และซ็อกเก็ตได้</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>ลิงก์สัญลักษณ์ที่ชี้ไปนอกโฟลเดอร์ที่ซิงค์จะไม่ถูกซิงค์</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>นามแฝง “%1” ชี้ไปยังรายการที่ไม่ได้ซิงค์</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>ชื่อยาวเกินไป ใช้อักขระได้ไม่เกิน %1 ตัว</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>เส้นทางยาวเกินไป โปรดย่อชื่อโฟลเดอร์ในเส้นทาง</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>ชื่อมีอักขระที่ไม่อนุญาต: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>ชื่อ “%1” สงวนไว้สำหรับระบบ</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>ชื่อลงท้ายด้วยช่องว่างหรือจุด โปรดเปลี่ยนชื่อรายการ</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>ชื่อมีอักขระที่อ่านไม่ได้ โปรดเปลี่ยนชื่อรายการ</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>มีรายการชื่อ “%1” ในโฟลเดอร์นี้อยู่แล้ว</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>ป้อนชื่อ</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>ไม่พบโฟลเดอร์ “%1”</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>โฟลเดอร์ไม่ถูกลบเนื่องจากมีไฟล์ที่ไม่ได้ซิงค์</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>ไม่สามารถสร้างโฟลเดอร์ได้</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>ไม่สามารถลบโฟลเดอร์ได้</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>คุณไม่มีสิทธิ์เปลี่ยนแปลงโฟลเดอร์นี้</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>คุณไม่มีสิทธิ์เปิดโฟลเดอร์นี้</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>โฟลเดอร์มีมากกว่า %1 รายการ โปรดย้ายบางรายการไปยังโฟลเดอร์ย่อย</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>โฟลเดอร์ซ้อนกันลึกเกินไป</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>เซิร์ฟเวอร์ไม่ว่าง Corvimo Client จะลองอีกครั้งในอีกไม่กี่นาที</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server รายงานข้อผิดพลาดภายใน โปรดขอให้ผู้ดูแลระบบตรวจดูบันทึกการทำงาน</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>Corvimo Server ไม่รับการเปลี่ยนแปลงในขณะนี้</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>วอลุ่มที่มีโฟลเดอร์นี้ไม่พร้อมใช้งานใน Corvimo Server</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>โฟลเดอร์ที่แชร์ถูกเอาออกจาก Corvimo Server</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>การซิงค์ถูกปิดสำหรับโฟลเดอร์ที่แชร์นี้</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>เซิร์ฟเวอร์ส่งคำตอบที่ Corvimo Client ไม่เข้าใจ</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>เซสชันของคุณสิ้นสุดแล้ว โปรดลงชื่อเข้าใช้อีกครั้ง</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>ข้อมูลของ Corvimo Server ถูกรีเซ็ต โปรดตั้งค่างานซิงค์ของคุณอีกครั้ง</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>ไม่สามารถอัปโหลด “%1” ได้</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>ไม่สามารถอัปโหลด “%1” ได้: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>ไม่สามารถดาวน์โหลด “%1” ได้</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>ไม่สามารถดาวน์โหลด “%1” ได้: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>ไม่สามารถลบ “%1” ได้: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>ไม่สามารถเปลี่ยนชื่อ “%1” ได้: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>ไม่สามารถย้าย “%1” ได้: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>ไม่สามารถกู้คืน “%1” ได้: %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>ไม่ได้รับอนุญาต</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>ดิสก์รายงานข้อผิดพลาดในการอ่านหรือเขียน โปรดตรวจสอบความเสียหายของดิสก์</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>ดิสก์ถูกถอดออกขณะเขียนไฟล์</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>หน่วยความจำไม่เพียงพอ โปรดปิดโปรแกรมอื่นแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>ฐานข้อมูลการซิงค์เสียหายและจะถูกสร้างใหม่ อาจใช้เวลาสักครู่</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>โปรแกรมอื่นกำลังใช้ฐานข้อมูลการซิงค์อยู่</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>กำลังสร้างฐานข้อมูลการซิงค์ใหม่...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>สร้างฐานข้อมูลการซิงค์ใหม่แล้ว</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>ไม่สามารถอ่านการตั้งค่าของคุณได้ จึงใช้ค่าเริ่มต้นแทน</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>ไม่สามารถบันทึกการตั้งค่าของคุณได้</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>อาจตรวจพบการเปลี่ยนแปลงในบางโฟลเดอร์ช้า เนื่องจากระบบเฝ้าดูโฟลเดอร์มากเกินไป</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>นาฬิกาของคอมพิวเตอร์เครื่องนี้ต่างจากนาฬิกาของเซิร์ฟเวอร์มากกว่า %1 นาที โปรดตั้งเวลาของคอมพิวเตอร์เครื่องนี้ให้ถูกต้อง</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Corvimo Server ไม่รองรับการดำเนินการนี้</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>ยกเลิกการดำเนินการแล้ว</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>การดำเนินการใช้เวลานานเกินไปและถูกหยุด</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>เกิดข้อผิดพลาดที่ไม่รู้จัก</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>ไม่สามารถเริ่ม Corvimo Client ได้ โปรดเริ่มคอมพิวเตอร์เครื่องนี้ใหม่แล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Corvimo Client กำลังทำงานอยู่แล้ว</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>ส่วนประกอบของ Corvimo Client หายไป โปรดติดตั้งไคลเอนต์อีกครั้ง</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>ไม่สามารถแสดงไอคอนสถานะได้เนื่องจากโปรแกรมอื่นใช้ตำแหน่งไอคอนที่มีทั้งหมดแล้ว</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Corvimo Client ต้องได้รับสิทธิ์จากคุณเพื่ออ่านโฟลเดอร์นี้ โปรดอนุญาตในการตั้งค่าความเป็นส่วนตัวของคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>หากยังพบปัญหาอยู่ โปรดเริ่ม Corvimo Client ใหม่</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>หากยังพบปัญหาอยู่ โปรดสอบถามผู้ดูแลระบบ</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>หากยังพบปัญหาอยู่ โปรดติดต่อฝ่ายสนับสนุนและแจ้งรหัสข้อผิดพลาด</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>คุณต้องการดำเนินการต่อกับไฟล์ที่เหลือหรือไม่</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>ลงชื่อเข้าใช้</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>ลงชื่อออก</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>ลงชื่อเข้าใช้ Corvimo Server</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>แสดงรหัสผ่าน</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>ลืมรหัสผ่านใช่ไหม</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>ลงชื่อเข้าใช้ค้างไว้</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>กำลังลงชื่อเข้าใช้...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>ลงชื่อเข้าใช้ในชื่อ %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>คุณลงชื่อออกแล้ว</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>คุณต้องการลงชื่อออกหรือไม่ การซิงค์จะหยุดจนกว่าคุณจะลงชื่อเข้าใช้อีกครั้ง</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>ลงชื่อเข้าใช้ด้วยเบราว์เซอร์ของคุณ</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>ดำเนินการต่อในเบราว์เซอร์ของคุณ แล้วกลับมาที่นี่</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>ไม่สามารถเปิดเบราว์เซอร์ได้ โปรดเปิดที่อยู่นี้ด้วยตนเอง: %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>โดเมน</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>หากบัญชีของคุณอยู่ในโดเมน ให้ป้อนชื่อผู้ใช้ในรูปแบบ โดเมน\ผู้ใช้</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>เพิ่มบัญชี</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>สลับบัญชี</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>เอาบัญชีออก</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>คุณต้องการเอาบัญชี %1 ออกจากคอมพิวเตอร์เครื่องนี้หรือไม่ ไฟล์ของคุณจะยังอยู่ในคอมพิวเตอร์เครื่องนี้และใน Corvimo Server</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>ที่อยู่อีเมล</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>ชื่อและนามสกุล</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>เปลี่ยนรหัสผ่าน</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>รหัสผ่านปัจจุบัน</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>รหัสผ่านใหม่</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>ป้อนรหัสผ่านใหม่อีกครั้ง</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>เปลี่ยนรหัสผ่านของคุณแล้ว</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>ผู้ดูแลระบบกำหนดให้คุณเปลี่ยนรหัสผ่าน</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>รหัสผ่านของคุณจะหมดอายุในอีก %1 วัน</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>รหัสผ่านทั้งสองไม่ตรงกัน</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>รหัสผ่านใหม่ต้องแตกต่างจากรหัสผ่านปัจจุบัน</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>ป้อนชื่อผู้ใช้ของคุณ</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>ป้อนรหัสผ่านของคุณ</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>ชื่อผู้ใช้หรือรหัสผ่านไม่ถูกต้อง</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>ชื่อผู้ใช้หรือรหัสผ่านไม่ถูกต้อง คุณลองได้อีก %1 ครั้ง</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>บัญชีของคุณถูกปิดใช้งาน โปรดสอบถามผู้ดูแลระบบ</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>บัญชีของคุณหมดอายุแล้ว โปรดสอบถามผู้ดูแลระบบ</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>คุณไม่มีสิทธิ์ใช้ Corvimo Server โปรดสอบถามผู้ดูแลระบบ</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>รหัสผ่านของคุณหมดอายุแล้ว โปรดเปลี่ยนใน Corvimo Server</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>โฟลเดอร์หลักของคุณไม่พร้อมใช้งาน โปรดขอให้ผู้ดูแลระบบเปิดบริการโฟลเดอร์หลัก</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>ไม่สามารถใช้บัญชีผู้เยี่ยมชมเพื่อซิงค์ได้</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>ใบอนุญาตทั้งหมดของ Corvimo Server ถูกใช้งานอยู่</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>ชื่อของคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>อุปกรณ์ที่เชื่อมโยง</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>คุณต้องการยกเลิกการเชื่อมโยง “%1” หรือไม่ อุปกรณ์จะถูกลงชื่อออกและหยุดซิงค์</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>%1 ยกเลิกการเชื่อมโยงคอมพิวเตอร์เครื่องนี้ โปรดลงชื่อเข้าใช้อีกครั้งเพื่อซิงค์ต่อ</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>คอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>ลบไฟล์ในอุปกรณ์ด้วย</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>การลงชื่อเข้าใช้แบบสองขั้นตอน</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>ป้อนรหัสที่แอปยืนยันตัวตนของคุณแสดง</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>รหัสยืนยัน</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>ตัวเลข 6 หลัก</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>ตรวจสอบ</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>กำลังตรวจสอบ...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>เชื่อถืออุปกรณ์นี้</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>ไม่ต้องถามอีกในคอมพิวเตอร์เครื่องนี้เป็นเวลา %1 วัน</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>โทรศัพท์หายใช่ไหม</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>ส่งรหัสทางอีเมล</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>ส่งรหัสไปยัง %1 แล้ว รหัสใช้ได้ 10 นาที</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>ไม่สามารถส่งรหัสได้ โปรดขอความช่วยเหลือจากผู้ดูแลระบบ</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>ใช้รหัสกู้คืน</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>ป้อนรหัสกู้คืนรหัสใดรหัสหนึ่งที่คุณจดไว้ แต่ละรหัสใช้ได้ครั้งเดียว</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>คุณมีรหัสกู้คืนเหลือ %1 รหัส</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>ใช้กุญแจความปลอดภัย</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>เสียบกุญแจความปลอดภัยของคุณแล้วแตะที่กุญแจ</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>ไม่รู้จักกุญแจความปลอดภัย โปรดลองใช้กุญแจอื่น</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>อนุมัติการลงชื่อเข้าใช้ในโทรศัพท์ของคุณ</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>กำลังรอการอนุมัติจากคุณ...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>เลือกหมายเลข %1 ในโทรศัพท์ของคุณ</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>การลงชื่อเข้าใช้ถูกปฏิเสธในโทรศัพท์ของคุณ</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>คำขอหมดอายุแล้ว โปรดส่งอีกครั้ง</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>ส่งอีกครั้ง</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>ลองวิธีอื่น</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>ป้อนรหัส</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>รหัสไม่ถูกต้อง โปรดตรวจสอบว่านาฬิกาในโทรศัพท์ของคุณตรงเวลา</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>รหัสนี้ถูกใช้ไปแล้ว โปรดรอรหัสถัดไป</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>ป้อนรหัสผิดหลายครั้งเกินไป โปรดรอ %1 นาทีแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>ผู้ดูแลระบบกำหนดให้ใช้การลงชื่อเข้าใช้แบบสองขั้นตอน โปรดตั้งค่าใน Corvimo Server ก่อน</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>ตั้งค่าการลงชื่อเข้าใช้แบบสองขั้นตอน</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>สแกนคิวอาร์โค้ดนี้ด้วยแอปยืนยันตัวตนของคุณ</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>การลงชื่อเข้าใช้แบบสองขั้นตอนเปิดอยู่</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>งานสำรองข้อมูล</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>งานสำรองข้อมูลจะคัดลอกโฟลเดอร์ของคอมพิวเตอร์เครื่องนี้ไปยัง Corvimo Server และเก็บเวอร์ชันก่อนหน้าไว้</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>สร้างงานสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>แก้ไขงานสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>ลบงานสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>คุณต้องการลบงานสำรองข้อมูล “%1” หรือไม่</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>ลบไฟล์ที่สำรองไว้ใน Corvimo Server ด้วย</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>ชื่องาน</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>มีงานที่ใช้ชื่อนี้อยู่แล้ว</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>สิ่งที่จะสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>เพิ่มโฟลเดอร์</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>เลือกอย่างน้อยหนึ่งโฟลเดอร์ที่จะสำรองข้อมูล</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>ไม่มีโฟลเดอร์ “%1” อีกต่อไป โฟลเดอร์นี้จะไม่รวมอยู่ในข้อมูลสำรอง</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>เดสก์ท็อป</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>เอกสาร</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>รูปภาพ</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>เพลง</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>วิดีโอ</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>รายการดาวน์โหลด</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>ดิสก์ภายนอก</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>ตำแหน่งที่จะจัดเก็บข้อมูลสำรอง</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>โฟลเดอร์นี้มีข้อมูลสำรองของคอมพิวเตอร์เครื่องอื่นอยู่แล้ว</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>เวลาที่จะสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>ทุกครั้งที่ไฟล์เปลี่ยนแปลง</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>ตามกำหนดเวลา</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>เฉพาะเมื่อฉันเริ่มเอง</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>รายวัน</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>รายสัปดาห์</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>รายเดือน</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>รายชั่วโมง</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>เวลา %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>ในวันเหล่านี้</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>เมื่อเชื่อมต่อดิสก์ภายนอก</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>ปลุกคอมพิวเตอร์เครื่องนี้เพื่อสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>สำรองข้อมูลทันที</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>หยุดสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>คุณต้องการหยุดสำรองข้อมูลหรือไม่ ไฟล์ที่สำรองไว้แล้วจะถูกเก็บไว้</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>กำลังสำรองข้อมูล...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>กำลังสำรองข้อมูล %1 จาก %2 ไฟล์</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>การสำรองข้อมูลเสร็จสมบูรณ์</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>สำรองข้อมูลล่าสุด: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>สำรองข้อมูลครั้งถัดไป: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>ยังไม่ได้สำรองข้อมูล</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>การสำรองข้อมูลเสร็จสมบูรณ์ แต่ไม่สามารถอ่าน %1 ไฟล์ได้</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>การสำรองข้อมูลล้มเหลว: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>พลาดการสำรองข้อมูลที่กำหนดไว้เมื่อ %1 การสำรองข้อมูลจะเริ่มทันที</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>คอมพิวเตอร์เครื่องนี้ไม่ได้สำรองข้อมูลมา %1 วันแล้ว</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>ระยะเวลาที่จะเก็บเวอร์ชัน</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>เก็บทุกเวอร์ชัน</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>เก็บ %1 เวอร์ชันล่าสุด</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>เก็บเวอร์ชันไว้ %1 วัน</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>เก็บเวอร์ชันน้อยลงเมื่อเวอร์ชันเก่าขึ้น</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>เข้ารหัสข้อมูลสำรอง</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>กุญแจเข้ารหัส</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>เก็บกุญแจไว้ในที่ปลอดภัย หากไม่มีกุญแจจะไม่สามารถกู้คืนข้อมูลสำรองได้</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>กุญแจเข้ารหัสไม่ถูกต้อง</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>กู้คืนไฟล์</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>เลือกไฟล์ที่จะกู้คืนและตำแหน่งที่จะวางไฟล์</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>กู้คืนไปยังตำแหน่งเดิม</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>แทนที่ไฟล์ที่มีอยู่</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>กำลังกู้คืน %1 จาก %2 ไฟล์</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>กู้คืนไฟล์ทั้งหมดแล้ว</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>กู้คืน %1 ไฟล์แล้ว ไม่สามารถกู้คืน %2 ไฟล์ได้</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>ตรวจสอบข้อมูลสำรอง</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>ข้อมูลสำรองสมบูรณ์ดี</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>%1 ไฟล์ในข้อมูลสำรองเสียหาย ไฟล์จะได้รับการสำรองอีกครั้ง</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>เสร็จสิ้น</translation>
    </message>
    <message>
        <source>Corvimo Client</source>
        <translation>Corvimo Client</translation>
    </message>
    <message>
        <source>Corvimo Server</source>
        <translation>Corvimo Server</translation>
    </message>
    <message>
        <source>Corvimo ID</source>
        <translation>Corvimo ID</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>เวอร์ชัน %1</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <translation>เวอร์ชัน %1 (บิลด์ %2)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>เวอร์ชันเซิร์ฟเวอร์</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>สงวนลิขสิทธิ์</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>ข้อตกลงสิทธิ์การใช้งาน</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>คำชี้แจงความเป็นส่วนตัว</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>ซอฟต์แวร์ของบริษัทอื่น</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>เว็บไซต์</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>ติดต่อฝ่ายสนับสนุน</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>ส่งความคิดเห็น</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>ขอบคุณที่ใช้ Corvimo Client</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>บันทึกการทำงาน</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>ระดับรายละเอียด</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>ปกติ</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>ทุกอย่าง</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>บันทึกการทำงานแบบละเอียดทำให้ไคลเอนต์ช้าลง โปรดกลับไปใช้ระดับปกติเมื่อคุณดำเนินการเสร็จแล้ว</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>เปิดโฟลเดอร์บันทึกการทำงาน</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>จัดเก็บบันทึกการทำงาน</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>จัดเก็บบันทึกการทำงานไปยัง “%1” แล้ว</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>ไม่สามารถจัดเก็บบันทึกการทำงานได้</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>ล้างบันทึกการทำงาน</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>คุณต้องการล้างบันทึกการทำงานหรือไม่</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>ส่งบันทึกการทำงานให้ฝ่ายสนับสนุน</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>กำลังส่งบันทึกการทำงาน...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>ส่งบันทึกการทำงานแล้ว หมายเลขรายงานของคุณคือ %1</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>ไม่สามารถส่งบันทึกการทำงานได้ โปรดจัดเก็บแล้วส่งทางอีเมล</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>บันทึกการทำงานมีชื่อของไฟล์และโฟลเดอร์ แต่ไม่มีเนื้อหาของไฟล์</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>ส่งข้อมูลการใช้งานแบบไม่ระบุชื่อเพื่อช่วยปรับปรุง Corvimo Client</translation>
    </message>
    <message>
        <source>General</source>
        <translation>ทั่วไป</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>เริ่ม Corvimo Client เมื่อฉันเข้าสู่ระบบคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>แสดงไอคอนสถานะบนไฟล์และโฟลเดอร์</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>แสดง Corvimo Client ในเมนูบริบท</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>แสดงโฟลเดอร์ที่ซิงค์ในแถบด้านข้าง</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>แสดงไอคอนในแถบเมนู</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>ภาษา</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>เหมือนกับระบบ</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>ภาษาจะเปลี่ยนเมื่อคุณเริ่ม Corvimo Client ใหม่</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>ลักษณะที่ปรากฏ</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>สว่าง</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>มืด</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>ขนาดข้อความ</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>ไม่พักเครื่องขณะกำลังซิงค์ไฟล์</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>ย้ายไฟล์ที่ถูกลบใน Corvimo Server ไปยังถังขยะ</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>เตือนฉันก่อนลบไฟล์จำนวนมาก</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>คุณต้องการรีเซ็ตการตั้งค่าทั้งหมดหรือไม่ งานซิงค์ของคุณจะยังคงเหมือนเดิม</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>การตั้งค่านี้จัดการโดยผู้ดูแลระบบ</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>บันทึกการตั้งค่าของคุณแล้ว</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>คุณต้องการละทิ้งการเปลี่ยนแปลงหรือไม่</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>ละทิ้ง</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>ไฟล์ตามต้องการ</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>ไฟล์ทั้งหมดจะแสดงในคอมพิวเตอร์เครื่องนี้ แต่จะดาวน์โหลดเฉพาะเมื่อคุณเปิดไฟล์</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>ใช้ “ไฟล์ตามต้องการ”</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>คุณต้องการใช้ “ไฟล์ตามต้องการ” สำหรับ “%1” หรือไม่ ไฟล์ที่อยู่ในคอมพิวเตอร์เครื่องนี้แล้วจะยังอยู่ที่นี่</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>“ไฟล์ตามต้องการ” เปิดใช้อยู่</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>ปิดใช้ “ไฟล์ตามต้องการ”</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>คุณต้องการปิดใช้ “ไฟล์ตามต้องการ” หรือไม่ ไฟล์ทั้งหมดของโฟลเดอร์นี้จะถูกดาวน์โหลด (%1)</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>มีพื้นที่ไม่เพียงพอสำหรับดาวน์โหลดไฟล์ทั้งหมด ต้องการพื้นที่เพิ่มอีก %1</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>ออนไลน์เท่านั้น</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>อยู่ในคอมพิวเตอร์เครื่องนี้เสมอ</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>อยู่ในคอมพิวเตอร์เครื่องนี้บางส่วน</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>%1 ไฟล์จะอยู่ทางออนไลน์เท่านั้น คุณต้องการดำเนินการต่อหรือไม่</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>เพิ่มพื้นที่ดิสก์ว่าง %1 แล้ว</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>ไฟล์ที่ยังไม่ได้อัปโหลดจะยังอยู่ในคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>“%1” เปิดอยู่และจะยังอยู่ในคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>เพิ่มพื้นที่ว่างโดยอัตโนมัติ</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>ให้ไฟล์อยู่ทางออนไลน์เท่านั้นเมื่อไม่ได้เปิดมาเป็นเวลา %1 วัน</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>เฉพาะเมื่อพื้นที่ดิสก์เหลือน้อย</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 กำลังดาวน์โหลด “%2”</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>บล็อกการดาวน์โหลดโดยโปรแกรมนี้</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>มีโปรแกรมกำลังเปิดไฟล์จำนวนมากที่อยู่ทางออนไลน์เท่านั้น คุณต้องการอนุญาตหรือไม่</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>ไม่สามารถเปิด “%1” ได้เนื่องจากไฟล์อยู่ทางออนไลน์เท่านั้นและ Corvimo Client ไม่ได้เชื่อมต่ออยู่</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>เริ่ม Corvimo Client เพื่อเปิดไฟล์ที่อยู่ทางออนไลน์เท่านั้น</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>ระบบเวอร์ชันนี้ไม่รองรับ “ไฟล์ตามต้องการ”</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>ดิสก์นี้ไม่รองรับ “ไฟล์ตามต้องการ”</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>อนุญาตส่วนขยายผู้ให้บริการไฟล์ในการตั้งค่าระบบเพื่อใช้ “ไฟล์ตามต้องการ”</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>แสดงตัวอย่างของไฟล์ที่อยู่ทางออนไลน์เท่านั้น</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>ไม่สามารถค้นหาเนื้อหาของไฟล์ที่อยู่ทางออนไลน์เท่านั้นในคอมพิวเตอร์เครื่องนี้ได้</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>อนุญาต</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>บล็อก</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>ยินดีต้อนรับสู่ Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>ตั้งค่า Corvimo Client ในไม่กี่ขั้นตอนเพื่อให้มีไฟล์ของคุณในคอมพิวเตอร์ทุกเครื่อง</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>เริ่มต้นใช้งาน</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>ขั้นตอนที่ %1 จาก %2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>เชื่อมต่อกับเซิร์ฟเวอร์ของคุณ</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>ป้อนที่อยู่ของ Corvimo Server และลงชื่อเข้าใช้ด้วยบัญชีของคุณ</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>คุณต้องการทำอะไร</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>ซิงค์ไฟล์</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>ทำให้ไฟล์ในคอมพิวเตอร์เครื่องนี้และใน Corvimo Server เหมือนกันอยู่เสมอ</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>สำรองข้อมูลคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>คัดลอกไฟล์ของคุณไปยัง Corvimo Server เพื่อป้องกันการสูญหาย</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>ไฟล์ของคุณจะซิงค์ไปยัง “%1”</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>โฟลเดอร์ทีม</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>เลือกโฟลเดอร์ทีมที่คุณต้องการในคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>คุณไม่ได้เป็นสมาชิกของโฟลเดอร์ทีมใด</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>ตัวเลือกการซิงค์</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>ซิงค์ไฟล์ทั้งหมด</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Corvimo Client ต้องได้รับสิทธิ์จากคุณเพื่อแสดงการแจ้งเตือนและอ่านโฟลเดอร์ของคุณ</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>สรุป</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>ตรวจสอบตัวเลือกของคุณก่อนเริ่ม</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>จะดาวน์โหลด %1 ไฟล์ (%2)</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>พร้อมใช้งานแล้ว</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Corvimo Client กำลังซิงค์ไฟล์ของคุณ คุณจะพบโปรแกรมได้ในแถบเมนู</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>ชมการแนะนำ</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>คลิกไอคอนในแถบเมนูเพื่อดูสิ่งที่กำลังดำเนินการอยู่</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>คลิกขวาที่ไฟล์เพื่อแชร์หรือดูเวอร์ชันของไฟล์</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>ไอคอนบนไฟล์ของคุณจะแสดงว่าไฟล์ซิงค์แล้วหรือไม่</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>คุณต้องการออกจากการตั้งค่าหรือไม่ คุณสามารถดำเนินการต่อภายหลังได้</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>พบการตั้งค่าของการติดตั้งก่อนหน้า คุณต้องการใช้หรือไม่</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 ไบต์</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 KB/s</source>
        <translation>%1 KB/วินาที</translation>
    </message>
    <message>
        <source>%1 MB/s</source>
        <translation>%1 MB/วินาที</translation>
    </message>
    <message>
        <source>%1 percent</source>
        <translation>%1 เปอร์เซ็นต์</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 ไฟล์</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 ไฟล์</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 โฟลเดอร์</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 โฟลเดอร์</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>%1 รายการ</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 จาก %2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>%1 ไฟล์, %2 โฟลเดอร์</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 และ %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>เมื่อสักครู่</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>วันนี้</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>วันนี้ เวลา %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>เมื่อวานนี้</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>เมื่อวานนี้ เวลา %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>พรุ่งนี้</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 เวลา %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>1 นาทีที่แล้ว</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 นาทีที่แล้ว</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>1 ชั่วโมงที่แล้ว</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 ชั่วโมงที่แล้ว</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 วันที่แล้ว</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>สัปดาห์ที่แล้ว</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>เดือนที่แล้ว</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 วินาที</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 นาที</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 ชั่วโมง</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 วัน</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>เหลือ %1 วินาที</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>เหลือ %1 นาที</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>เหลือ %1 ชั่วโมง</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>วันจันทร์</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>วันอังคาร</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>วันพุธ</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>วันพฤหัสบดี</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>วันศุกร์</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>วันเสาร์</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>วันอาทิตย์</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>ใช่</translation>
    </message>
    <message>
        <source>No</source>
        <translation>ไม่</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>เรียนรู้เพิ่มเติม</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>ไม่ต้องแสดงข้อความนี้อีก</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>โปรดรอสักครู่...</translation>
    </message>
</context>
</TS>
